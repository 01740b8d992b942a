# ls_windows_resource(PROGRAM TITLE): gives a program file its icon, version and maker, and a manifest with
# the systems and features that it supports, such as paths of any length. Does nothing for other systems.
function(ls_windows_resource program title)
  if(NOT WIN32)
    return()
  endif()
  set(LS_PROGRAM ${program})
  set(LS_TITLE ${title})
  set(LS_ICON ${CMAKE_SOURCE_DIR}/packaging/icons/lodestar-advisor.ico)
  set(LS_MANIFEST ${CMAKE_SOURCE_DIR}/packaging/windows/program.manifest)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc @ONLY)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${program}.rc PROPERTIES OBJECT_DEPENDS "${LS_ICON};${LS_MANIFEST}")
  target_sources(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
endfunction()
