# SPDX-License-Identifier: BSD-3-Clause
# cmake -DROOT=... -P check_oddities.cmake
# Fails when a file has more comments that begin with "Deliberate:" than docs/deliberate-oddities.md
# has lines that name it, or fewer.

file(READ "${ROOT}/docs/deliberate-oddities.md" list)
file(GLOB_RECURSE sources "${ROOT}/zonestyle/*.h" "${ROOT}/zonestyle/*.cpp" "${ROOT}/vocabulary/*.h")
foreach(source ${sources})
  get_filename_component(name "${source}" NAME)
  file(READ "${source}" text)
  string(REGEX MATCHALL "Deliberate:" comments "${text}")
  string(REGEX MATCHALL "\\| `${name}` \\|" lines "${list}")
  list(LENGTH comments found)
  list(LENGTH lines listed)
  if(NOT found EQUAL listed)
    message(SEND_ERROR "${name}: ${found} deliberate oddities, ${listed} in docs/deliberate-oddities.md")
  endif()
endforeach()
