# Debian packages, by `cpack` in a build that is configured with -DCMAKE_INSTALL_PREFIX=/usr; see
# scripts/package. Packages that do not depend on Qt's version come out alike from either build.
set(_gui libombringui${OMBRIN_QT_SUFFIX})
set(_runtime libombringui${PROJECT_VERSION_MAJOR})
set(_qt_dev "qtbase5-dev")
set(_base_style ", qt5-style-plugins")
if(OMBRIN_QT EQUAL 6)
  set(_runtime libombringui-qt6-${PROJECT_VERSION_MAJOR})
  set(_qt_dev "qt6-base-dev, qt6-5compat-dev")
  set(_base_style "")
endif()
set(_this_version "(= ${PROJECT_VERSION})")

set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ombringui)
set(CPACK_PACKAGE_VENDOR "ombrin")
set(CPACK_PACKAGE_CONTACT "ombrin gui maintainers <maintainers@ombrin.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_COMPONENTS_ALL "")

# What Debian wants to know of every package, and of one with libraries.
set(_folder "${PROJECT_BINARY_DIR}/package")
string(TIMESTAMP _date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(CONFIGURE OUTPUT "${_folder}/changelog" @ONLY CONTENT
"@CPACK_PACKAGE_NAME@ (@PROJECT_VERSION@) unstable; urgency=medium

  * See CHANGELOG.md in the sources.

 -- @CPACK_PACKAGE_CONTACT@  @_date@
")
file(CONFIGURE OUTPUT "${_folder}/copyright" @ONLY CONTENT
"Copyright 2026 ombrin gui maintainers

License: LGPL-2.1+
 This library is free software; you can redistribute it and/or modify it under the terms of the GNU
 Lesser General Public License as published by the Free Software Foundation; either version 2.1 of
 the License, or (at your option) any later version.
 .
 On Debian systems its text is in /usr/share/common-licenses/LGPL-2.1.
")
file(CONFIGURE OUTPUT "${_folder}/shlibs" @ONLY CONTENT
"libomcore@OMBRIN_QT_SUFFIX@ @PROJECT_VERSION_MAJOR@ @_runtime@ (>= @PROJECT_VERSION@)
libombringui@OMBRIN_QT_SUFFIX@ @PROJECT_VERSION_MAJOR@ @_runtime@ (>= @PROJECT_VERSION@)
")
file(CONFIGURE OUTPUT "${_folder}/triggers" CONTENT "activate-noawait ldconfig\n")
file(CHMOD "${_folder}/shlibs" "${_folder}/triggers"
  PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${_folder}/shlibs;${_folder}/triggers")
find_program(OMBRIN_GZIP gzip REQUIRED)
execute_process(COMMAND "${OMBRIN_GZIP}" -9nkf "${_folder}/changelog" COMMAND_ERROR_IS_FATAL ANY)

# _ombrin_package(COMPONENT NAME SECTION SUMMARY [DEPENDS text] [RECOMMENDS text] [ANY_MACHINE]
#                 TEXT line...)
function(_ombrin_package component name section summary)
  cmake_parse_arguments(PARSE_ARGV 4 arg "ANY_MACHINE" "DEPENDS;RECOMMENDS" "TEXT")
  string(TOUPPER ${component} key)
  list(JOIN arg_TEXT "\n" text)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
  set(CPACK_COMPONENT_${key}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${arg_DEPENDS}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_RECOMMENDS "${arg_RECOMMENDS}" PARENT_SCOPE)
  if(arg_ANY_MACHINE)
    set(CPACK_DEBIAN_${key}_PACKAGE_ARCHITECTURE all PARENT_SCOPE)
  else()
    set(CPACK_DEBIAN_${key}_PACKAGE_SHLIBDEPS ON PARENT_SCOPE)
  endif()

  # Where Debian's tools expect them; not part of an installation by hand.
  set(folder "${CMAKE_INSTALL_DATADIR}/doc/${name}")
  install(FILES "${_folder}/copyright" "${_folder}/changelog.gz" DESTINATION "${folder}"
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

_ombrin_package(data ombringui-data misc "skin and translations of ombrin gui" ANY_MACHINE
  TEXT "The default skin (palette, style sheet, pictures) and the translations of"
       "ombrin gui, a library of Qt widgets for messaging clients.")
_ombrin_package(runtime ${_runtime} libs "skinned Qt ${OMBRIN_QT} widgets for messaging clients"
  DEPENDS "ombringui-data (>= ${PROJECT_VERSION})"
  RECOMMENDS "${_gui}-portal${_base_style}"
  TEXT "Windows, dialogs, contact lists, chat views and input, pop-ups and effects in"
       "a skin of their own.")
_ombrin_package(headers libombringui-headers libdevel "headers of ombrin gui" ANY_MACHINE
  TEXT "The headers of ombrin gui, which are the same for all versions of Qt.")
_ombrin_package(development ${_gui}-dev libdevel "development files of ombrin gui for Qt ${OMBRIN_QT}"
  DEPENDS "${_runtime} ${_this_version}, libombringui-headers ${_this_version}, ${_qt_dev}"
  TEXT "CMake package OmbrinGui, pkg-config files and library links.")
_ombrin_package(style qt${OMBRIN_QT}-style-ombrin libs "Qt ${OMBRIN_QT} style of ombrin gui"
  DEPENDS "${_runtime} (>= ${PROJECT_VERSION})"
  TEXT "Gives any Qt ${OMBRIN_QT} program the look of ombrin gui, when it is started with"
       "\"-style ombrin\" or QT_STYLE_OVERRIDE=ombrin in its environment.")
if(TARGET ombrin_portal)
  _ombrin_package(portal ${_gui}-portal libs "screenshots through the desktop portal for ombrin gui"
    DEPENDS "${_runtime} (>= ${PROJECT_VERSION})"
    TEXT "Lets programs that use ombrin gui photograph the screen where they may not"
         "grab it themselves, as under Wayland.")
endif()
if(TARGET ombrin_designer)
  _ombrin_package(designer ${_gui}-designer libdevel
    "widgets of ombrin gui in Qt ${OMBRIN_QT} Designer"
    DEPENDS "${_runtime} (>= ${PROJECT_VERSION})"
    TEXT "Shows the widgets of ombrin gui in the widget box of Qt Designer.")
endif()

include(CPack)
