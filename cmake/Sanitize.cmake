if(LS_SANITIZE)
  # A finding of either sanitizer ends the program: a test that printed one and passed would hide it.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(LS_BUILD_FUZZERS)
  # Everything is built so that a fuzzer sees which branches an input takes; the targets link the fuzzer itself.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
