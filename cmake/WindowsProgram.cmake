# What makes tarnwick.exe a Windows program: icon, version information, manifest; and its zip, which
# cpack makes.

configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/tarnwick.manifest tarnwick.manifest @ONLY)
configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/tarnwick.rc.in tarnwick.rc @ONLY)
target_sources(tarnwick PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tarnwick.rc)
set_target_properties(tarnwick PROPERTIES WIN32_EXECUTABLE ON)

configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/README.txt.in README.txt
  @ONLY NEWLINE_STYLE CRLF)
configure_file(${CMAKE_SOURCE_DIR}/LICENSE LICENSE.txt @ONLY NEWLINE_STYLE CRLF)

install(TARGETS tarnwick RUNTIME DESTINATION .)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt ${CMAKE_CURRENT_BINARY_DIR}/LICENSE.txt
  DESTINATION .)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/examples DESTINATION .)
install(DIRECTORY ${TARNWICK_WINDOWS_SDK}/licences DESTINATION .)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME tarnwick-${PROJECT_VERSION}-win64)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
include(CPack)
