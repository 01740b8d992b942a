add_library(ls_warnings INTERFACE)
target_compile_options(ls_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
