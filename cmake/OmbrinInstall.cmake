# What `cmake --install` puts into place: libraries, headers, the CMake package OmbrinGui and the
# pkg-config files. Skins and translations are installed where they are built. The folders are those
# of OmbrinFolders.cmake. The components are
#
#   runtime   the libraries            development   CMake package, pkg-config files, library links
#   data      skins, translations      headers       include/ombrin
#   portal, style, designer            one plug-in each
#   documentation                      licence, readme, changes

include(CMakePackageConfigHelpers)

set(OMBRIN_QT_MINIMUM 5.15)
set(OMBRIN_GUI_QT_MODULES "Core Gui Widgets")
if(OMBRIN_QT EQUAL 6)
  set(OMBRIN_QT_MINIMUM 6.4)
  string(APPEND OMBRIN_GUI_QT_MODULES " Core5Compat")
endif()

set(_package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/OmbrinGui-qt${OMBRIN_QT}")
set(_build_folder "${PROJECT_BINARY_DIR}/package")

# Each library finds the others beside itself. In the system's own folders the loader looks anyway.
set(OMBRIN_INSTALLS_TO_SYSTEM OFF)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(OMBRIN_INSTALLS_TO_SYSTEM ON)
endif()

# _ombrin_set_install_rpath(TARGET FOLDER): FOLDER is where the target is installed.
function(_ombrin_set_install_rpath target folder)
  if(WIN32 OR OMBRIN_INSTALLS_TO_SYSTEM)
    return()
  endif()
  cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
  file(RELATIVE_PATH way "${folder}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  set(origin "$ORIGIN")
  if(APPLE)
    set(origin "@loader_path")
  endif()
  string(REGEX REPLACE "/$" "" rpath "${origin}/${way}")
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${rpath}")
endfunction()

# _ombrin_install_library(TARGET EXPORT-SET)
function(_ombrin_install_library target export)
  _ombrin_set_install_rpath(${target} "${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS ${target} EXPORT ${export}
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime
      NAMELINK_COMPONENT development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
    INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
  install(EXPORT ${export}
    NAMESPACE ombrin::
    DESTINATION "${_package_folder}"
    COMPONENT development)
endfunction()

# ombrin_install_plugin(TARGET FOLDER COMPONENT): FOLDER is the plug-in's kind, as Qt calls it.
function(ombrin_install_plugin target folder component)
  _ombrin_set_install_rpath(${target} "${OMBRIN_PLUGIN_DESTINATION}/${folder}")
  install(TARGETS ${target}
    RUNTIME DESTINATION "${OMBRIN_PLUGIN_DESTINATION}/${folder}" COMPONENT ${component}
    LIBRARY DESTINATION "${OMBRIN_PLUGIN_DESTINATION}/${folder}" COMPONENT ${component})
endfunction()

# ---- CMake package ------------------------------------------------------------------------------

function(_ombrin_install_package)
  _ombrin_install_library(ombrin_core OmbrinCoreTargets)
  _ombrin_install_library(ombrin_gui OmbrinGuiTargets)

  configure_package_config_file(
    "${PROJECT_SOURCE_DIR}/cmake/OmbrinGuiConfig.cmake.in" "${_build_folder}/OmbrinGuiConfig.cmake"
    INSTALL_DESTINATION "${_package_folder}"
    PATH_VARS OMBRIN_INSTALL_DATADIR
    NO_SET_AND_CHECK_MACRO)
  configure_file(
    "${PROJECT_SOURCE_DIR}/cmake/OmbrinGuiConfigVersion.cmake.in"
    "${_build_folder}/OmbrinGuiConfigVersion.cmake" @ONLY)
  # Before 1.0 a minor version may break what the one before it promised.
  write_basic_package_version_file("${_build_folder}/OmbrinGuiVersionNumber.cmake"
    COMPATIBILITY SameMinorVersion)
  install(FILES
    "${_build_folder}/OmbrinGuiConfig.cmake"
    "${_build_folder}/OmbrinGuiConfigVersion.cmake"
    "${_build_folder}/OmbrinGuiVersionNumber.cmake"
    DESTINATION "${_package_folder}"
    COMPONENT development)
endfunction()

# ---- pkg-config ---------------------------------------------------------------------------------

# _ombrin_pkg_config_file(NAME LIBRARY DESCRIPTION REQUIRES)
function(_ombrin_pkg_config_file name library description requires)
  set(folder "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig")
  # From the file itself, so that the tree can be moved; but pkg-config must know the system's own
  # folders again, which it leaves out.
  set(prefix "${CMAKE_INSTALL_PREFIX}")
  if(NOT OMBRIN_INSTALLS_TO_SYSTEM)
    file(RELATIVE_PATH way "${folder}" "${CMAKE_INSTALL_PREFIX}")
    string(REGEX REPLACE "/$" "" prefix "\${pcfiledir}/${way}")
  endif()
  # Debian's and others' Qt 5 demands position-independent code and does not say so.
  set(flags "")
  if(UNIX AND OMBRIN_QT EQUAL 5)
    set(flags " -fPIC")
  endif()
  set(file "${_build_folder}/${name}${OMBRIN_QT_SUFFIX}.pc")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/ombrin.pc.in" "${file}" @ONLY)
  install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endfunction()

function(_ombrin_install_pkg_config)
  string(REGEX REPLACE "([A-Z][A-Za-z0-9]+)" "Qt${OMBRIN_QT}\\1" gui_modules "${OMBRIN_GUI_QT_MODULES}")
  _ombrin_pkg_config_file(ombrin-core omcore
    "Settings, folders, spelling and lists for messaging clients" "Qt${OMBRIN_QT}Core")
  _ombrin_pkg_config_file(ombrin-gui ombringui
    "${PROJECT_DESCRIPTION}" "ombrin-core${OMBRIN_QT_SUFFIX} = ${PROJECT_VERSION} ${gui_modules}")
endfunction()

# ombrin_install(): called when the libraries' targets are there.
function(ombrin_install)
  _ombrin_install_package()
  _ombrin_install_pkg_config()
  install(FILES LICENSE README.md CHANGELOG.md
    DESTINATION "${CMAKE_INSTALL_DOCDIR}"
    COMPONENT documentation)
endfunction()
