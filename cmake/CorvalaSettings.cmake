# SPDX-License-Identifier: BSD-3-Clause
# Language level, warnings and the include roots that every target shares.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

find_program(CORVALA_CCACHE ccache)
if(CORVALA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CORVALA_CCACHE}")
endif()

# One include root per top folder, and per room of a folder that has layers: a target sees only the
# folders whose roots it is given, so a forbidden include does not compile.
function(corvala_include_root root)
  foreach(folder ${ARGN})
    set(link "${CMAKE_BINARY_DIR}/include-roots/${root}/${folder}")
    cmake_path(GET link PARENT_PATH parent)
    if(IS_SYMLINK "${parent}") # of a former root, which showed the whole folder
      file(REMOVE "${parent}")
    endif()
    file(MAKE_DIRECTORY "${parent}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${link}" SYMBOLIC)
  endforeach()
endfunction()
foreach(folder vocabulary host samples sdk/private
    zonestyle/controls zonestyle/tables zonestyle/actions zonestyle/models zonestyle/views
    zonestyle/dialog
    play plot plot/common plot/curves plot/field/geometry plot/field/scene app tests)
  string(REPLACE "/" "-" root "${folder}")
  corvala_include_root(${root} "${folder}")
endforeach()

# The libraries of the SDK share one root, which does not show what is private to them.
set(CV_SDK_LIBRARIES base toolbox common signals property uicommon common_ui propertymanager
  propertybindings dialogs_common dialogs_prompt dialogs_lineplot)
list(TRANSFORM CV_SDK_LIBRARIES PREPEND "sdk/" OUTPUT_VARIABLE folders)
corvala_include_root(sdk ${folders})

add_library(corvala_options INTERFACE)
target_compile_definitions(corvala_options INTERFACE
  QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS BOOST_BIND_GLOBAL_PLACEHOLDERS)
target_compile_options(corvala_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${CORVALA_WARNINGS_AS_ERRORS}>:-Werror>)
