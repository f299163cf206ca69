# What an installed Tarnwick consists of on Windows: one folder. packaging/windows/pack makes zip and installer
# of it.

# add_texts(FOLDER FILE...): lays texts, named *.txt and with the line ends of Windows, in a folder.
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

file(GLOB examples examples/*.txt)
file(GLOB licences ${TARNWICK_WINDOWS_SDK}/licences/*.txt)
install(TARGETS tarnwick tarnwick-run RUNTIME DESTINATION .)
add_texts(. packaging/windows/README.txt.in LICENSE)
add_texts(examples ${examples})
add_texts(licences ${licences})
install(FILES packaging/wireshark/tarnwick.lua DESTINATION wireshark)
install_guide(.)
