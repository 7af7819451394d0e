# What every target of the tree is built with: language, Qt, warnings, sanitizers.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(OMBRIN_CCACHE ccache)
if(OMBRIN_CCACHE)
  # Without these it refuses whatever includes a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${OMBRIN_CCACHE}")
endif()

if(NOT OMBRIN_QT MATCHES "^[56]$")
  message(FATAL_ERROR "OMBRIN_QT is '${OMBRIN_QT}'; it must be 5 or 6.")
endif()
set(QT_VERSION_MAJOR "${OMBRIN_QT}")
if(OMBRIN_QT EQUAL 5)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets)
else()
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Core5Compat)
endif()

# Compiler settings of our own code; never of those who link to the library.
add_library(ombrin_build_options INTERFACE)
target_compile_definitions(ombrin_build_options INTERFACE
  QT_DISABLE_DEPRECATED_BEFORE=0x050F00
  QT_NO_KEYWORDS
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_STRICT_ITERATORS)
target_compile_options(ombrin_build_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${OMBRIN_WARNINGS_AS_ERRORS}>:-Werror>)
if(OMBRIN_SANITIZE)
  target_compile_options(ombrin_build_options INTERFACE
    -fsanitize=${OMBRIN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(ombrin_build_options INTERFACE -fsanitize=${OMBRIN_SANITIZE})
endif()
if(OMBRIN_BUILD_FUZZERS)
  target_compile_options(ombrin_build_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(OMBRIN_BUILD_TESTS OR OMBRIN_BUILD_BENCHMARKS OR OMBRIN_BUILD_FUZZERS)
  target_compile_definitions(ombrin_build_options INTERFACE OMBRIN_AUTOTEST)
endif()

# ombrin_precompile(TARGET HEADER...): parses Qt's headers once for all sources of a target, where that
# is wanted. Every source still includes what it uses: the release preset builds without.
function(ombrin_precompile target)
  if(OMBRIN_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# ombrin_add_library(TARGET ALIAS OUTPUT_NAME EXPORT_SYMBOL): one of our two shared libraries.
function(ombrin_add_library target alias output_name define_symbol)
  add_library(${target} SHARED)
  add_library(ombrin::${alias} ALIAS ${target})
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${output_name}${OMBRIN_QT_SUFFIX}
    EXPORT_NAME ${alias}
    DEFINE_SYMBOL ${define_symbol}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
  target_compile_features(${target} PUBLIC cxx_std_17)
  target_include_directories(${target}
    PUBLIC
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
      $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
      $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:ombrin_build_options>)
endfunction()

# ombrin_add_classes(TARGET CLASS...): public classes whose source lies in the current folder and
# whose header lies in include/ombrin.
function(ombrin_add_classes target)
  foreach(class IN LISTS ARGN)
    target_sources(${target} PRIVATE
      ${CMAKE_CURRENT_SOURCE_DIR}/${class}.cpp
      ${PROJECT_SOURCE_DIR}/include/ombrin/${class}.h)
  endforeach()
endfunction()
