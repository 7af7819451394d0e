# Programs for Windows that are built elsewhere run under Wine, unless the cross tool chain brings
# an emulator of its own. Wine must be told where the libraries of Qt and of the compiler lie.
function(_ombrin_run_tests_under_wine)
  get_target_property(qt_core Qt${OMBRIN_QT}::Core LOCATION)
  get_filename_component(qt_libraries "${qt_core}" DIRECTORY)
  set(arguments --dlls "${qt_libraries}")
  foreach(library IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}
      OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(IS_ABSOLUTE "${file}")
      get_filename_component(folder "${file}" DIRECTORY)
      list(APPEND arguments --dlls "${folder}")
    endif()
  endforeach()

  if(TARGET Qt${OMBRIN_QT}::QWindowsIntegrationPlugin)
    get_target_property(plugin Qt${OMBRIN_QT}::QWindowsIntegrationPlugin LOCATION)
    get_filename_component(plugins "${plugin}/../.." ABSOLUTE)
  else()
    get_target_property(qmake Qt${OMBRIN_QT}::qmake LOCATION)
    execute_process(COMMAND "${qmake}" -query QT_INSTALL_PLUGINS
      OUTPUT_VARIABLE plugins OUTPUT_STRIP_TRAILING_WHITESPACE)
  endif()
  set(CMAKE_CROSSCOMPILING_EMULATOR
    "${PROJECT_SOURCE_DIR}/tests/support/with-wine" ${arguments} --plugins "${plugins}"
    PARENT_SCOPE)
endfunction()
if(WIN32 AND CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
  _ombrin_run_tests_under_wine()
endif()

# ombrin_add_test(NAME SOURCES file... [LIBRARIES target...] [WINDOW_SYSTEM | TWO_SCREENS]
#                 [SCALE_FACTORS factor...])
#
# Adds a Qt Test program. It runs on Qt's offscreen platform; with WINDOW_SYSTEM it runs under an X
# server and a window manager of its own instead, and with TWO_SCREENS that server has two screens,
# the second with twice the density of the first. When cross compiling for Windows every test runs
# on the real platform plug-in through the emulator, and tests that drive X11 from outside are left
# out. For every factor in SCALE_FACTORS the program runs once more at that
# display scale.
function(ombrin_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOW_SYSTEM;TWO_SCREENS" "" "SOURCES;LIBRARIES;SCALE_FACTORS")
  if((arg_WINDOW_SYSTEM OR arg_TWO_SCREENS) AND WIN32)
    return()
  endif()

  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ombrin_test_support ${arg_LIBRARIES})
  add_dependencies(${name} ombrin_skin)
  if(OMBRIN_PRECOMPILED_HEADERS AND NOT arg_LIBRARIES)
    target_precompile_headers(${name} REUSE_FROM ombrin_test_headers)
  endif()

  if(WIN32)
    set(environment "")
    set(launcher "")
  elseif(arg_WINDOW_SYSTEM)
    # No test draws through OpenGL, whose drivers keep memory that the leak check would count.
    set(environment "QT_QPA_PLATFORM=xcb" "QT_XCB_GL_INTEGRATION=none")
    set(launcher "${PROJECT_SOURCE_DIR}/tests/support/with-x11")
  elseif(arg_TWO_SCREENS)
    set(environment "QT_QPA_PLATFORM=xcb" "QT_XCB_GL_INTEGRATION=none")
    set(launcher "${PROJECT_SOURCE_DIR}/tests/support/with-x11" --two-screens)
  else()
    set(environment "QT_QPA_PLATFORM=offscreen")
    set(launcher "")
  endif()
  list(APPEND environment
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")

  foreach(factor IN ITEMS 1 LISTS arg_SCALE_FACTORS)
    set(test_name ${name})
    set(test_environment ${environment})
    if(NOT factor EQUAL 1)
      string(APPEND test_name "@${factor}")
      list(APPEND test_environment "QT_SCALE_FACTOR=${factor}")
    endif()
    if(launcher)
      add_test(NAME ${test_name} COMMAND ${launcher} $<TARGET_FILE:${name}>)
    else()
      add_test(NAME ${test_name} COMMAND ${name})
    endif()
    set_tests_properties(${test_name} PROPERTIES
      ENVIRONMENT "${test_environment}" TIMEOUT 300)
    if(WIN32)
      # One window at a time is the active one of a Windows desktop.
      set_tests_properties(${test_name} PROPERTIES RESOURCE_LOCK windows_desktop)
    endif()
  endforeach()
endfunction()
