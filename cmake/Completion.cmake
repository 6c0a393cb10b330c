# Shell completion for bash and zsh, printed by the program itself from its own subcommands and
# options (tvpolicy completion bash|zsh) once it is built, and installed where the shells look.
if(CMAKE_CROSSCOMPILING)
  return()
endif()
set(_completion_dir "${PROJECT_BINARY_DIR}/completion")
add_custom_command(OUTPUT "${_completion_dir}/tvpolicy" "${_completion_dir}/_tvpolicy"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${_completion_dir}"
  COMMAND sh -c "\"$1\" completion bash > \"$2\" && \"$1\" completion zsh > \"$3\"" completion
          "$<TARGET_FILE:tvpolicy_cli>" "${_completion_dir}/tvpolicy" "${_completion_dir}/_tvpolicy"
  DEPENDS tvpolicy_cli
  COMMENT "Generating the bash and zsh completion"
  VERBATIM)
add_custom_target(completion ALL DEPENDS "${_completion_dir}/tvpolicy" "${_completion_dir}/_tvpolicy")
install(FILES "${_completion_dir}/tvpolicy" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
install(FILES "${_completion_dir}/_tvpolicy" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions")
