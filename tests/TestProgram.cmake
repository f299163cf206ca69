# Most of the time of a test's build goes into the headers of Qt. So the tests of a room are one program, from
# few units. It runs the test by whose name it is called: FOLDER/NAME/tst_NAME is a link to it, in a folder
# of its own, which is the data folder of whatever window the test opens.

# add_room_test(ROOM NAME [LIBRARIES...]): the test in tst_NAME.cpp of this folder, and its ctest entry
# FOLDER/NAME, labelled with the room. Its program links the room and whatever else is named. Those that a
# folder lists in `linux_tests` need pseudo-terminals, permissions or other means of Linux.
function(add_room_test room name)
  add_test_of(${room} ${name} ${room} ${ARGN})
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
  if(TEST ${folder}/${name})
    set_tests_properties(${folder}/${name} PROPERTIES LABELS ${room})
  endif()
endfunction()

# The same for a test of the whole window.
function(add_window_test name)
  add_test_of(window ${name} testwindow ${ARGN})
endfunction()

# The same for a test of programs.
function(add_program_test name)
  add_test_of(programs ${name} ${ARGN})
endfunction()

# test_program(RESULT NAME): the target that a test of this folder is part of, to be given definitions and
# dependencies.
function(test_program result name)
  get_property(program DIRECTORY PROPERTY TARNWICK_PROGRAM_OF_${name})
  set(${result} ${program} PARENT_SCOPE)
endfunction()

# test_command(RESULT NAME): what runs a test of this folder.
function(test_command result name)
  test_path(path ${name})
  set(${result} ${CMAKE_CROSSCOMPILING_EMULATOR} ${path} PARENT_SCOPE)
endfunction()

function(test_path result name)
  set(${result} ${CMAKE_CURRENT_BINARY_DIR}/${name}/tst_${name}${CMAKE_EXECUTABLE_SUFFIX} PARENT_SCOPE)
endfunction()

# Lists the test programs: a line for each, NAME|ROOM|FILE.
function(list_test_programs file)
  get_property(programs GLOBAL PROPERTY TARNWICK_TEST_PROGRAMS)
  file(GENERATE OUTPUT ${file} CONTENT "${programs}")
endfunction()

# add_test_support(NAME [LIBRARIES...]): a library of what several tests share, from NAME.cpp and NAME.h
# of this folder.
function(add_test_support name)
  add_library(${name} STATIC ${name}.cpp ${name}.h)
  target_include_directories(${name} PUBLIC .)
  target_link_libraries(${name} PUBLIC ${ARGN} Qt5::Test PRIVATE tarnwick_options)
  stand_ins(in ${ARGN})
  set_target_properties(${name} PROPERTIES TARNWICK_STANDS_IN "${in}")
endfunction()

# stands_in(LIBRARY): its functions are called in place of the system's, in every test of a program that links
# it. So tests with it and tests without are different programs.
function(stands_in library)
  set_target_properties(${library} PROPERTIES TARNWICK_STANDS_IN ${library})
endfunction()

# What stands in for something among these libraries.
function(stand_ins result)
  set(all)
  foreach(library ${ARGN})
    if(TARGET ${library})
      get_target_property(in ${library} TARNWICK_STANDS_IN)
      if(in)
        list(APPEND all ${in})
      endif()
    endif()
  endforeach()
  list(REMOVE_DUPLICATES all)
  list(SORT all)
  set(${result} "${all}" PARENT_SCOPE)
endfunction()

function(add_test_of room name)
  if(WIN32 AND name IN_LIST linux_tests)
    return()
  endif()
  stand_ins(in ${ARGN})
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
  list(JOIN in _ suffix)
  string(REGEX REPLACE "_$" "" program "tests_${folder}_${room}_${suffix}")
  string(REPLACE "_${folder}_${folder}" "_${folder}" program ${program})
  if(NOT TARGET ${program})
    add_executable(${program} ${tsan_sources})
    target_link_libraries(${program} PRIVATE testprogram Qt5::Test tarnwick_options)
    set_target_properties(${program} PROPERTIES UNITY_BUILD OFF
      AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    set_property(GLOBAL APPEND_STRING PROPERTY TARNWICK_TEST_PROGRAMS
      "${program}|${room}|$<TARGET_FILE:${program}>\n")
    cmake_language(EVAL CODE "cmake_language(DEFER CALL finish_test_program ${program})")
  endif()
  target_link_libraries(${program} PRIVATE ${ARGN})
  set_property(TARGET ${program} APPEND PROPERTY TARNWICK_TESTS ${name})
  set_property(DIRECTORY PROPERTY TARNWICK_PROGRAM_OF_${name} ${program})
  test_command(command ${name})
  add_test(NAME ${folder}/${name} COMMAND ${command})
  set(environment ${test_environment})
  if(TARNWICK_COVERAGE)
    list(APPEND environment LLVM_PROFILE_FILE=${CMAKE_BINARY_DIR}/profiles/${room}/${program}-%m.profraw)
  endif()
  set_tests_properties(${folder}/${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 120)
  if(${folder}/${name} IN_LIST long_tests)
    set_tests_properties(${folder}/${name} PROPERTIES COST 100)
  endif()
endfunction()

# When all tests of a program are known: its sources, each with its main() under the test's name, the main()
# that chooses among them, and the links to it.
function(finish_test_program program)
  get_target_property(names ${program} TARNWICK_TESTS)
  set(sources)
  set(mains)
  set(entries)
  set(links)
  foreach(name ${names})
    list(APPEND sources tst_${name}.cpp)
    string(APPEND mains "int tst_${name}(int argc, char **argv);\n")
    string(APPEND entries "            {\"tst_${name}\", tst_${name}},\n")
    test_path(link ${name})
    list(APPEND links
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/${name}
      COMMAND ${CMAKE_COMMAND} -E create_hardlink $<TARGET_FILE:${program}> ${link})
  endforeach()
  configure_file(${CMAKE_SOURCE_DIR}/tests/support/testprogram.cpp.in ${program}.cpp @ONLY)
  target_sources(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${program}.cpp ${sources})
  add_meta_objects(${program} ${sources})
  if(TARNWICK_TEST_UNITS)
    add_test_units(${program} ${sources})
  else()
    foreach(source ${sources})
      cmake_path(GET source STEM main)
      set_source_files_properties(${source} PROPERTIES COMPILE_DEFINITIONS main=${main})
    endforeach()
  endif()
  add_custom_command(TARGET ${program} POST_BUILD ${links} VERBATIM)
endfunction()

# The meta object of each test, tst_NAME.moc. Qt's headers say nothing that moc needs for it, so it isn't told where
# they are: reading them is all its work elsewhere.
function(add_meta_objects program)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${program}_moc)
  foreach(source ${ARGN})
    cmake_path(GET source STEM name)
    add_custom_command(OUTPUT ${folder}/${name}.moc
      COMMAND Qt5::moc -o ${folder}/${name}.moc ${CMAKE_CURRENT_SOURCE_DIR}/${source}
      DEPENDS ${source}
      COMMENT "Making ${name}.moc"
      VERBATIM)
    target_sources(${program} PRIVATE ${folder}/${name}.moc)
  endforeach()
  target_include_directories(${program} PRIVATE ${folder})
endfunction()

# Compiles these sources in units of twelve.
function(add_test_units program)
  set_source_files_properties(${ARGN} PROPERTIES HEADER_FILE_ONLY ON)
  set(count 0)
  foreach(source ${ARGN})
    math(EXPR unit "${count} / 12 + 1")
    math(EXPR count "${count} + 1")
    cmake_path(GET source STEM main)
    string(APPEND text_${unit} "#undef main\n#define main ${main}\n"
      "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${source}\"\n")
  endforeach()
  foreach(number RANGE 1 ${unit})
    set(path ${CMAKE_CURRENT_BINARY_DIR}/${program}_${number}.cpp)
    file(CONFIGURE OUTPUT ${path} CONTENT "${text_${number}}" @ONLY)
    target_sources(${program} PRIVATE ${path})
  endforeach()
endfunction()
