# Every program counts the lines that it runs and adds to the counts of earlier runs. tests/coverage reads
# them.
if(LS_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
