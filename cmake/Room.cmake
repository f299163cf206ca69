# A room is a static library with an include folder of its own. Its half that knows no widget is a target
# of the room's name, the widgets around it are a second one, ROOM_widgets, of the same folder.
#
#   add_room(NAME SOURCES files... [DEPENDS targets...] [PRIVATE targets...])
#
# DEPENDS names what its headers include, PRIVATE what only its sources do; together they are all that it
# includes.
function(add_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;DEPENDS;PRIVATE")
  add_library(${name} STATIC ${room_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${room_DEPENDS} PRIVATE ${room_PRIVATE} tarnwick_options)
endfunction()
