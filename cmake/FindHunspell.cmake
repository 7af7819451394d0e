# Finds the spelling library Hunspell and defines the target Hunspell::Hunspell.
#
# The building machine's own Hunspell is never taken for that of a cross compiler, which is why
# pkg-config only gives hints, and only where it looks for the same machine.

if(NOT CMAKE_CROSSCOMPILING)
  find_package(PkgConfig QUIET)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(PC_HUNSPELL QUIET hunspell)
  endif()
endif()

find_path(Hunspell_INCLUDE_DIR hunspell/hunspell.hxx
  HINTS ${PC_HUNSPELL_INCLUDEDIR} ${PC_HUNSPELL_INCLUDE_DIRS})
find_library(Hunspell_LIBRARY
  NAMES ${PC_HUNSPELL_LIBRARIES} hunspell-1.7 hunspell-1.6 hunspell
  HINTS ${PC_HUNSPELL_LIBDIR} ${PC_HUNSPELL_LIBRARY_DIRS})
mark_as_advanced(Hunspell_INCLUDE_DIR Hunspell_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Hunspell REQUIRED_VARS Hunspell_LIBRARY Hunspell_INCLUDE_DIR)

if(Hunspell_FOUND AND NOT TARGET Hunspell::Hunspell)
  add_library(Hunspell::Hunspell UNKNOWN IMPORTED)
  set_target_properties(Hunspell::Hunspell PROPERTIES
    IMPORTED_LOCATION "${Hunspell_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${Hunspell_INCLUDE_DIR}")
  # Without it the headers declare what a DLL exports.
  if(WIN32 AND Hunspell_LIBRARY MATCHES "\\.a$" AND NOT Hunspell_LIBRARY MATCHES "\\.dll\\.a$")
    set_target_properties(Hunspell::Hunspell PROPERTIES
      INTERFACE_COMPILE_DEFINITIONS HUNSPELL_STATIC)
  endif()
endif()
