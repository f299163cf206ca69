# The packages from outside, under the same names on every platform:
#   tarnwick_hidapi   hidapi
#   tarnwick_system   what the sources named for the platform need besides
# TARNWICK_PLATFORM is the end of those sources' names.

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets SerialPort Test)
# It names the build folder to every test, so that no other clone could use what was compiled here.
set_property(TARGET Qt5::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS)
add_library(tarnwick_hidapi INTERFACE)
add_library(tarnwick_system INTERFACE)

if(WIN32)
  set(TARNWICK_PLATFORM win)
  find_package(hidapi 0.13 REQUIRED COMPONENTS winapi)
  target_link_libraries(tarnwick_hidapi INTERFACE hidapi::winapi)
  target_link_libraries(tarnwick_system INTERFACE advapi32 user32 winmm)
  # A program registers the plugins of the static Qt, not each library that is linked into it: for every picture
  # that is loaded, Qt goes through all that are registered several times.
  foreach(plugin ${Qt5Gui_PLUGINS} ${Qt5Widgets_PLUGINS})
    get_target_property(registration ${plugin} INTERFACE_SOURCES)
    set_property(TARGET ${plugin} PROPERTY INTERFACE_SOURCES
      "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${registration}>")
  endforeach()
else()
  set(TARNWICK_PLATFORM linux)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(hidapi REQUIRED IMPORTED_TARGET hidapi-hidraw)
  pkg_check_modules(udev REQUIRED IMPORTED_TARGET libudev)
  target_link_libraries(tarnwick_hidapi INTERFACE PkgConfig::hidapi)
  target_link_libraries(tarnwick_system INTERFACE PkgConfig::udev)
endif()
