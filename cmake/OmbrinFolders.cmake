# Where an installation puts what; relative folders are relative to the prefix.
#
#   libraries, CMake package, pkg-config files   CMAKE_INSTALL_LIBDIR
#   headers                                      CMAKE_INSTALL_INCLUDEDIR/ombrin
#   skins, translations                          OMBRIN_INSTALL_DATADIR
#   plug-ins, in the subfolders that Qt wants    OMBRIN_PLUGIN_DESTINATION
#
# Builds for Qt 5 and for Qt 6 can share one prefix: what differs carries OMBRIN_QT_SUFFIX in its
# name, and what does not (headers, skins, translations) is the same file.

set(OMBRIN_QT_SUFFIX "")
if(OMBRIN_QT EQUAL 6)
  set(OMBRIN_QT_SUFFIX "-qt6")
endif()

set(OMBRIN_INSTALL_DATADIR "${CMAKE_INSTALL_DATADIR}/ombrin")

# Plug-ins belong into Qt's own folder, but only where that lies below the prefix: an installation
# writes nowhere else. Programs find them elsewhere when QT_PLUGIN_PATH names the folder.
function(_ombrin_default_plugin_folder result)
  set(folder "${CMAKE_INSTALL_LIBDIR}/qt${OMBRIN_QT}/plugins")
  if(WIN32)
    set(folder plugins)
  endif()
  if(NOT CMAKE_CROSSCOMPILING AND TARGET Qt${OMBRIN_QT}::qmake)
    get_target_property(qmake Qt${OMBRIN_QT}::qmake LOCATION)
    execute_process(COMMAND "${qmake}" -query QT_INSTALL_PLUGINS
      OUTPUT_VARIABLE qt_plugins OUTPUT_STRIP_TRAILING_WHITESPACE)
    file(RELATIVE_PATH below_prefix "${CMAKE_INSTALL_PREFIX}" "${qt_plugins}")
    if(IS_DIRECTORY "${qt_plugins}" AND NOT below_prefix MATCHES "^\\.\\./")
      set(folder "${below_prefix}")
    endif()
  endif()
  set(${result} "${folder}" PARENT_SCOPE)
endfunction()

set(OMBRIN_INSTALL_PLUGINDIR "" CACHE STRING
  "Folder of Qt plug-ins to install to; empty: Qt's own where it lies below the prefix")
set(OMBRIN_PLUGIN_DESTINATION "${OMBRIN_INSTALL_PLUGINDIR}")
if(NOT OMBRIN_PLUGIN_DESTINATION)
  _ombrin_default_plugin_folder(OMBRIN_PLUGIN_DESTINATION)
endif()
cmake_path(ABSOLUTE_PATH OMBRIN_PLUGIN_DESTINATION BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}"
  NORMALIZE OUTPUT_VARIABLE OMBRIN_FULL_PLUGIN_DESTINATION)

# The ways between the installed folders, along which the libraries and plug-ins find each other and
# their data also when the tree has been moved.
set(_libraries "${CMAKE_INSTALL_FULL_LIBDIR}")
if(WIN32)
  set(_libraries "${CMAKE_INSTALL_FULL_BINDIR}")
endif()
file(RELATIVE_PATH OMBRIN_DATA_FROM_LIBRARY "${_libraries}" "${CMAKE_INSTALL_FULL_DATADIR}/ombrin")
file(RELATIVE_PATH OMBRIN_PLUGINS_FROM_LIBRARY "${_libraries}"
  "${OMBRIN_FULL_PLUGIN_DESTINATION}")
