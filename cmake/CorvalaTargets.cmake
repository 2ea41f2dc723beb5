# SPDX-License-Identifier: BSD-3-Clause
# One function per kind of target, so that a folder's CMakeLists.txt says only what is particular
# to it.

function(_corvala_require_known name unparsed)
  if(unparsed)
    message(FATAL_ERROR "${name}: unknown arguments: ${unparsed}")
  endif()
endfunction()

# corvala_part(name SOURCES ... [ROOTS folder...] [LINKS target...])
# A folder of a shared library: an object library whose objects go into the library that links it.
# ROOTS names the folders whose headers it (and what links it) may include.
function(corvala_part name)
  cmake_parse_arguments(P "" "" "SOURCES;ROOTS;LINKS" ${ARGN})
  _corvala_require_known(${name} "${P_UNPARSED_ARGUMENTS}")
  add_library(${name} OBJECT ${P_SOURCES})
  _corvala_roots(${name} ${P_ROOTS})
  target_link_libraries(${name} PUBLIC ${P_LINKS} PRIVATE corvala_options)
endfunction()

# corvala_static(name SOURCES ... [ROOTS folder...] [LINKS target...] [HIDDEN])
# A folder built as a static library. HIDDEN gives its symbols hidden visibility.
function(corvala_static name)
  cmake_parse_arguments(P "HIDDEN" "" "SOURCES;ROOTS;LINKS" ${ARGN})
  _corvala_require_known(${name} "${P_UNPARSED_ARGUMENTS}")
  add_library(${name} STATIC ${P_SOURCES})
  _corvala_roots(${name} ${P_ROOTS})
  target_link_libraries(${name} PUBLIC ${P_LINKS} PRIVATE corvala_options)
  if(P_HIDDEN)
    set_target_properties(${name} PROPERTIES
      CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  endif()
endfunction()

function(_corvala_roots name)
  foreach(folder ${ARGN})
    string(REPLACE "/" "-" root "${folder}")
    target_include_directories(${name} PUBLIC "${CMAKE_BINARY_DIR}/include-roots/${root}")
  endforeach()
endfunction()

# corvala_test(name LINKS target... [SOURCES ...] [CANVAS])
# A Qt Test executable from tst_<name>.cpp in the current folder, run offscreen. CANVAS runs it
# under a virtual X server instead.
function(corvala_test name)
  cmake_parse_arguments(P "CANVAS" "" "SOURCES;LINKS" ${ARGN})
  _corvala_require_known(${name} "${P_UNPARSED_ARGUMENTS}")
  if(NOT EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/tst_${name}.cpp")
    message(WARNING "tst_${name}.cpp is missing")
    return()
  endif()
  add_executable(tst_${name} tst_${name}.cpp ${P_SOURCES}
    "${PROJECT_SOURCE_DIR}/tests/support/sanitizer_defaults.cpp")
  target_include_directories(tst_${name} PRIVATE "${CMAKE_BINARY_DIR}/include-roots/tests")
  target_link_libraries(tst_${name} PRIVATE ${P_LINKS} Qt5::Test corvala_options)
  set_target_properties(tst_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
  if(P_CANVAS)
    add_test(NAME ${name} COMMAND xvfb-run -a $<TARGET_FILE:tst_${name}>)
    corvala_test_environment(${name} xcb)
    set_tests_properties(${name} PROPERTIES LABELS canvas)
  else()
    add_test(NAME ${name} COMMAND tst_${name})
    corvala_test_environment(${name} offscreen)
  endif()
endfunction()

function(corvala_test_environment name platform)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
    "QT_QPA_PLATFORM=${platform};LC_ALL=C.UTF-8;QT_LOGGING_RULES=;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-home")
endfunction()
