# What makes tarnwick.exe a Windows program: icon, version information, manifest; and its zip, which
# cpack makes.

configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/tarnwick.manifest tarnwick.manifest @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/tarnwick.rc.in tarnwick.rc @ONLY)
target_sources(tarnwick PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tarnwick.rc)
set_target_properties(tarnwick PROPERTIES WIN32_EXECUTABLE ON)

# add_texts(FOLDER FILE...): lays texts, named *.txt and with the line ends of Windows, in a folder of
# the zip.
function(add_texts folder)
  set(made)
  foreach(file ${ARGN})
    get_filename_component(name ${file} NAME_WE)
    set(text ${CMAKE_CURRENT_BINARY_DIR}/texts/${folder}/${name}.txt)
    configure_file(${file} ${text} @ONLY NEWLINE_STYLE CRLF)
    list(APPEND made ${text})
  endforeach()
  install(FILES ${made} DESTINATION ${folder})
endfunction()

file(GLOB examples ${CMAKE_SOURCE_DIR}/examples/*.txt)
file(GLOB licences ${TARNWICK_WINDOWS_SDK}/licences/*.txt)
install(TARGETS tarnwick RUNTIME DESTINATION .)
add_texts(. ${CMAKE_SOURCE_DIR}/packaging/windows/README.txt.in ${CMAKE_SOURCE_DIR}/LICENSE)
add_texts(examples ${examples})
add_texts(licences ${licences})

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME tarnwick-${PROJECT_VERSION}-win64)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
include(CPack)
