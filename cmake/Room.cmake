# A room is one static library: its own include folder, and only the rooms and packages it names.
#
#   add_room(NAME SOURCES files... [DEPENDS targets...])
function(add_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;DEPENDS")
  add_library(${name} STATIC ${room_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${room_DEPENDS} PRIVATE tarnwick_options)
endfunction()
