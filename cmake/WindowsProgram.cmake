# What makes a program a Windows program: icon, version information, manifest.

set(windows_folder ${CMAKE_SOURCE_DIR}/packaging/windows)

# add_windows_resources(PROGRAM DESCRIPTION)
function(add_windows_resources program description)
  configure_file(${windows_folder}/program.manifest ${program}.manifest @ONLY)
  configure_file(${windows_folder}/program.rc.in ${program}.rc @ONLY)
  target_sources(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
endfunction()
