# The documentation's site, built by the target ombrin_docs into docs/html of the build folder where
# Doxygen is installed. Its pictures are taken from the gallery. A warning of Doxygen's is an error.

find_package(Doxygen 1.9.1 QUIET)
find_program(OMBRIN_DOCS_AWK NAMES mawk gawk awk DOC "Prepares the headers for Doxygen")
mark_as_advanced(OMBRIN_DOCS_AWK)
if(NOT DOXYGEN_FOUND OR NOT OMBRIN_DOCS_AWK OR NOT OMBRIN_BUILD_EXAMPLES OR CMAKE_CROSSCOMPILING)
  if(OMBRIN_BUILD_EXAMPLES)
    message(STATUS "Doxygen or awk is not installed: there is no target ombrin_docs")
  endif()
  return()
endif()

set(OMBRIN_DOCS_DIR "${PROJECT_BINARY_DIR}/docs")
set(OMBRIN_DOCS_PICTURES "${OMBRIN_DOCS_DIR}/pictures")
set(OMBRIN_DOCS_QT_TAGS "${OMBRIN_DOCS_DIR}/qt.tags")

add_executable(ombrin_docs_pictures EXCLUDE_FROM_ALL docs/pictures/main.cpp)
target_link_libraries(ombrin_docs_pictures PRIVATE ombrin_gallery_parts)
add_dependencies(ombrin_docs_pictures ombrin_skin)
add_custom_command(OUTPUT "${OMBRIN_DOCS_PICTURES}/pictures.dox"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${OMBRIN_DOCS_PICTURES}"
  COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 "QT_LOGGING_RULES=*=false"
    $<TARGET_FILE:ombrin_docs_pictures> "${OMBRIN_DOCS_PICTURES}"
  DEPENDS ombrin_docs_pictures
  COMMENT "Taking the documentation's pictures"
  VERBATIM)

# Where Qt documents the classes that the headers name.
function(_ombrin_docs_write_qt_tags headers)
  set(classes "")
  foreach(header IN LISTS headers)
    file(STRINGS "${header}" includes REGEX "^(#include <Qt[A-Za-z]+/Q|class Q)[A-Za-z]+")
    foreach(line IN LISTS includes)
      string(REGEX MATCH "Q[A-Za-z]+(>|;|$)" class "${line}")
      string(REGEX REPLACE "[>;]" "" class "${class}")
      list(APPEND classes ${class})
    endforeach()
  endforeach()
  list(APPEND classes QCompleter QPalette QApplication QStyleFactory)
  list(REMOVE_DUPLICATES classes)
  list(FILTER classes EXCLUDE REGEX "^(QtGlobal|QMetaType)?$")
  set(tags "<?xml version='1.0' encoding='UTF-8'?>\n<tagfile>\n")
  foreach(class IN LISTS classes)
    string(TOLOWER "${class}" page)
    string(APPEND tags "<compound kind=\"class\"><name>${class}</name>"
      "<filename>${page}.html</filename></compound>\n")
  endforeach()
  file(WRITE "${OMBRIN_DOCS_QT_TAGS}" "${tags}</tagfile>\n")
endfunction()

file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/include/ombrin/*.h")
file(GLOB guides CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/*.md" "${PROJECT_SOURCE_DIR}/docs/site/*")
file(MAKE_DIRECTORY "${OMBRIN_DOCS_DIR}")
_ombrin_docs_write_qt_tags("${headers}")

# Parts of the list and of Qt's versions that are public only for the compiler.
list(FILTER headers EXCLUDE REGEX "(COmMonitoredListImpl|COmMonitoredListData)\\.h$")
set(OMBRIN_DOCS_INPUT "")
foreach(input IN ITEMS ${headers} "${PROJECT_BINARY_DIR}/include/ombrin/OmVersion.h"
    "${PROJECT_SOURCE_DIR}/docs" "${OMBRIN_DOCS_PICTURES}/pictures.dox")
  string(APPEND OMBRIN_DOCS_INPUT " \"${input}\"")
endforeach()
configure_file(docs/site/Doxyfile.in "${OMBRIN_DOCS_DIR}/Doxyfile" @ONLY)

add_custom_command(OUTPUT "${OMBRIN_DOCS_DIR}/html/index.html"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${OMBRIN_DOCS_DIR}/html"
  COMMAND Doxygen::doxygen "${OMBRIN_DOCS_DIR}/Doxyfile"
  DEPENDS ${headers} ${guides} "${OMBRIN_DOCS_PICTURES}/pictures.dox" "${OMBRIN_DOCS_DIR}/Doxyfile"
  COMMENT "Writing the documentation"
  VERBATIM)
add_custom_target(ombrin_docs DEPENDS "${OMBRIN_DOCS_DIR}/html/index.html")
