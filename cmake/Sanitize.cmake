# LS_SANITIZE watches every program by both sanitizers. LS_BUILD_FUZZERS also counts the branches of the core.
if(LS_SANITIZE)
  # A finding of either sanitizer ends the program, so that a test cannot print it and still pass.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# ls_watch(TARGET): what tests run most is compiled for speed, and reports of the sanitizers name its lines. Tests themselves run
# once, so compiling them fast counts more.
function(ls_watch target)
  if(LS_SANITIZE)
    target_compile_options(${target} PRIVATE -O1 -g1)
  endif()
endfunction()

# ls_count_branches(TARGET): a fuzzer sees the branches of this target that an input takes.
function(ls_count_branches target)
  if(LS_BUILD_FUZZERS)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
