# The window's translations, translations/*.ts, and Qt's own of the same languages, as a source with the
# resources ":/translations": TARNWICK_TRANSLATIONS.
# Tool and Qt's texts are those of the machine that builds, also for another system.

set(languages de zh_CN)

# That on the PATH may be one that chooses between several Qts.
find_program(LRELEASE NAMES lrelease-qt5 lrelease HINTS /usr/lib/qt5/bin REQUIRED)
find_path(QT_TRANSLATIONS qtbase_de.qm PATHS /usr/share/qt5/translations
  NO_CMAKE_FIND_ROOT_PATH REQUIRED)

set(translations_folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
set(TARNWICK_TRANSLATIONS ${translations_folder}/translations.cpp)
set(compiled)
set(entries)
foreach(language ${languages})
  set(text ${CMAKE_SOURCE_DIR}/translations/tarnwick_${language}.ts)
  set(own ${translations_folder}/tarnwick_${language}.qm)
  add_custom_command(OUTPUT ${own}
    COMMAND ${LRELEASE} -silent ${text} -qm ${own}
    DEPENDS ${text}
    VERBATIM)
  list(APPEND compiled ${own})
  foreach(file ${own} ${QT_TRANSLATIONS}/qtbase_${language}.qm)
    get_filename_component(name ${file} NAME)
    string(APPEND entries "<file alias=\"${name}\">${file}</file>\n")
  endforeach()
endforeach()

set(list ${translations_folder}/translations.qrc)
file(CONFIGURE OUTPUT ${list}
  CONTENT "<RCC><qresource prefix=\"/translations\">\n@entries@</qresource></RCC>\n" @ONLY)
add_custom_command(OUTPUT ${TARNWICK_TRANSLATIONS}
  COMMAND Qt5::rcc --format-version 1 --name translations -o ${TARNWICK_TRANSLATIONS} ${list}
  DEPENDS ${compiled} ${list}
  COMMENT "Compiling the translations"
  VERBATIM)
# Two files of resources use the same names.
set_source_files_properties(${TARNWICK_TRANSLATIONS} PROPERTIES
  SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
