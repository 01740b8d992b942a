# ls_harden(PROGRAM): libraries are bound at the start, and what they are reached by cannot be written to afterwards.
function(ls_harden program)
  if(NOT WIN32)
    target_link_options(${program} PRIVATE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
  endif()
endfunction()
