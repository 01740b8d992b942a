# ls_harden(PROGRAM): binds all libraries at the start and then makes their address tables read-only.
function(ls_harden program)
  if(NOT WIN32)
    target_link_options(${program} PRIVATE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
  endif()
endfunction()
