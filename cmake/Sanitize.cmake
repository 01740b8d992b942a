if(LS_SANITIZE)
  # A finding of either sanitizer ends the program, so that a test cannot print it and still pass.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(LS_BUILD_FUZZERS)
  # Everything is instrumented so that a fuzzer sees the branches that an input takes; the targets link the
  # fuzzer itself.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
