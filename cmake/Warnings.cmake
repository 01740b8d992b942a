add_library(ls_warnings INTERFACE)
target_compile_options(ls_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

# GCC 12 wrongly warns of overlapping copies in optimised assignments of literals to std::string; GCC 13 does
# not.
target_compile_options(ls_warnings INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
