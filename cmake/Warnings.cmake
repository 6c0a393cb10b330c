# Warnings are errors in every target of the project.
add_compile_options(-Wall -Wextra -Werror)
