# Most of the time of a build goes into Qt's headers. Those that nearly every source includes are compiled once
# for the product, once for its tests, and of both once more with Qt's widgets. A source still includes what it
# needs: the preset `debug` builds without.

set(core_headers
  <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QJsonObject> <QList> <QMap> <QObject>
  <QPointer> <QSet> <QString> <QStringList> <QTimer> <QVariant> <QVector>
  <algorithm> <chrono> <functional> <memory> <optional> <string> <utility> <variant> <vector>)
set(widget_headers
  <QAction> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QFileDialog> <QHeaderView> <QLabel>
  <QLineEdit> <QMenu> <QMessageBox> <QPainter> <QPushButton> <QScrollBar> <QSettings> <QStyledItemDelegate>
  <QTableWidget>)
set(test_headers <QtTest> <QProcess> <QRegularExpression> <QTemporaryDir>)

# precompile(NAME LIBRARIES HEADERS...): the headers, compiled as for what links these libraries.
function(precompile name libraries)
  if(NOT TARNWICK_PRECOMPILE)
    return()
  endif()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE ${libraries} tarnwick_options)
  target_precompile_headers(${name} PRIVATE ${ARGN})
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF
    AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# links_to(RESULT TARGET LIBRARY): whether a target is compiled for a library, by itself or by way of others.
function(links_to result target library)
  get_target_property(links ${target} LINK_LIBRARIES)
  set(seen)
  while(links)
    list(POP_FRONT links link)
    if(TARGET ${link} AND NOT link IN_LIST seen)
      list(APPEND seen ${link})
      get_target_property(more ${link} INTERFACE_LINK_LIBRARIES)
      if(more)
        list(APPEND links ${more})
      endif()
    endif()
  endwhile()
  if(library IN_LIST seen)
    set(${result} ON PARENT_SCOPE)
  else()
    set(${result} OFF PARENT_SCOPE)
  endif()
endfunction()

# may_use_precompiled(RESULT TARGET): whether it is compiled at all, and has no such headers yet.
function(may_use_precompiled result target)
  get_target_property(type ${target} TYPE)
  get_target_property(own ${target} PRECOMPILE_HEADERS)
  get_target_property(others ${target} PRECOMPILE_HEADERS_REUSE_FROM)
  if(type MATCHES "^(UTILITY|INTERFACE_LIBRARY)$" OR own OR others)
    set(${result} OFF PARENT_SCOPE)
  else()
    set(${result} ON PARENT_SCOPE)
  endif()
endfunction()

# use_precompiled(FOLDER NAME LIBRARY): what was compiled as NAME_core and NAME_widgets, for those targets of a folder,
# and of those below, that link this library: at its lowest optimisation a compiler may leave calls of it in
# everything that has seen its headers.
function(use_precompiled folder name library)
  if(NOT TARNWICK_PRECOMPILE)
    return()
  endif()
  get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(below ${folders})
    use_precompiled(${below} ${name} ${library})
  endforeach()
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target ${targets})
    may_use_precompiled(may ${target})
    links_to(it ${target} ${library})
    links_to(widgets ${target} Qt5::Widgets)
    if(may AND it AND widgets)
      target_precompile_headers(${target} REUSE_FROM ${name}_widgets)
    elseif(may AND it)
      target_precompile_headers(${target} REUSE_FROM ${name}_core)
    endif()
  endforeach()
endfunction()
