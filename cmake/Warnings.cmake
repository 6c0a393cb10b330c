# Warnings in every target of the project. TVPOLICY_WERROR makes them errors: CI and the
# README's commands turn it on; a release built elsewhere, with another compiler's new
# warnings, need not fail on them.
option(TVPOLICY_WERROR "Treat compiler warnings as errors" OFF)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(TVPOLICY_WERROR)
  add_compile_options(-Werror)
endif()
