# Manual pages: written in scdoc (doc/man/NAME.SECTION.scd), turned into roff at build time and
# installed under the manual's folders. On by default where scdoc is installed.
find_program(SCDOC_PROGRAM scdoc)
if(SCDOC_PROGRAM)
  set(_manpages_default ON)
else()
  set(_manpages_default OFF)
endif()
option(TVPOLICY_MANPAGES "Generate and install the manual pages (needs scdoc)" ${_manpages_default})
if(NOT TVPOLICY_MANPAGES)
  return()
endif()
if(NOT SCDOC_PROGRAM)
  message(FATAL_ERROR "TVPOLICY_MANPAGES is on but scdoc was not found (apt-get install scdoc)")
endif()

file(GLOB _man_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/doc/man/*.scd")
set(_man_pages)
foreach(_source IN LISTS _man_sources)
  get_filename_component(_page "${_source}" NAME_WLE)  # tvpolicy.1
  string(REGEX MATCH "[0-9]$" _section "${_page}")
  set(_output "${PROJECT_BINARY_DIR}/man/${_page}")
  add_custom_command(OUTPUT "${_output}"
    COMMAND sh -c "\"$1\" < \"$2\" > \"$3\"" scdoc "${SCDOC_PROGRAM}" "${_source}" "${_output}"
    DEPENDS "${_source}"
    COMMENT "Generating the manual page ${_page}"
    VERBATIM)
  list(APPEND _man_pages "${_output}")
  install(FILES "${_output}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man${_section}")
endforeach()
add_custom_target(manpages ALL DEPENDS ${_man_pages})
