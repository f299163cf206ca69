# A room is a static library. Who includes a header of it names the room: "frames/link.h". Its half that
# knows no widget is a target of the room's name, the widgets around it are a second one, ROOM_widgets, of
# the same folder.
#
#   add_room(NAME SOURCES files... [DEPENDS targets...] [PRIVATE targets...])
#
# DEPENDS names what its headers include, PRIVATE what only its sources do; together they are all that it
# includes. Rooms are added from the ground up. Only `app` and rooms with "widgets" at the end of their name
# may know widgets, or another room that does.
function(add_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "" "SOURCES;DEPENDS;PRIVATE")
  add_library(${name} STATIC ${room_SOURCES})
  compile_by_themselves(${room_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${room_DEPENDS} PRIVATE ${room_PRIVATE} tarnwick_options)
  set_target_properties(${name} PROPERTIES TARNWICK_HALF pure AUTOUIC OFF)
  foreach(target ${room_DEPENDS} ${room_PRIVATE})
    note_widgets(${name} ${target})
  endforeach()
  set_property(GLOBAL APPEND PROPERTY TARNWICK_ROOMS ${name})
endfunction()

# Those that include Windows' own headers, whose macros no other source of a unit must meet.
function(compile_by_themselves)
  list(FILTER ARGN INCLUDE REGEX "_win\\.cpp$")
  if(ARGN)
    set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
endfunction()

# Whether a room knows widgets by way of a target.
function(note_widgets room target)
  if(NOT TARGET ${target})
    message(FATAL_ERROR "${room} stands below ${target}, or there is no such room")
  endif()
  get_target_property(half ${target} TARNWICK_HALF)
  if(NOT target MATCHES "^Qt5::(Gui|Widgets)$" AND NOT half STREQUAL widgets)
    return()
  endif()
  if(NOT room MATCHES "(^app|widgets)$")
    message(FATAL_ERROR "${room} may not know widgets, and names ${target}")
  endif()
  set_target_properties(${room} PROPERTIES TARNWICK_HALF widgets AUTOUIC ON)
endfunction()

# Lists the rooms for those who check them: a line for each, NAME|pure or widgets|FOLDER|TARGETS|SOURCES.
function(list_rooms file)
  get_property(rooms GLOBAL PROPERTY TARNWICK_ROOMS)
  set(lines)
  foreach(room ${rooms})
    get_target_property(folder ${room} SOURCE_DIR)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
    get_target_property(half ${room} TARNWICK_HALF)
    set(targets "$<JOIN:$<TARGET_PROPERTY:${room},LINK_LIBRARIES>, >")
    set(sources "$<JOIN:$<TARGET_PROPERTY:${room},SOURCES>, >")
    string(APPEND lines "${room}|${half}|${folder}|${targets}|${sources}\n")
  endforeach()
  file(GENERATE OUTPUT ${file} CONTENT "${lines}")
endfunction()
