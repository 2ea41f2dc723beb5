# SPDX-License-Identifier: BSD-3-Clause
# cmake -DLIBRARY=... -DNM=... -P check_exports.cmake
# Fails when the library exports a symbol that no line below allows, or none for one of the lines.

set(dialog "corvala::sdk::ui::dialogs::ZoneStyleDialog")
set(allowed
  "^${dialog}::getInstance\\("
  "^${dialog}::relevance\\("
  "^${dialog}::setAvailableMappingStyleTabs\\("
  "^${dialog}::m_dialogInstance$"
  "^${dialog}::m_availableMappingTabs$"
  "^(vtable for |typeinfo for |typeinfo name for )?corvala::property::PropertyDependentRelevance<bool>"
  "^(vtable for |typeinfo for |typeinfo name for )?corvala::propertybindings::ListModelAbstract<int>"
  "^(vtable for |typeinfo for |typeinfo name for )?corvala::propertybindings::ListModelAbstract<double>"
  "^(vtable for |typeinfo for |typeinfo name for )?corvala::propertybindings::ListModelInterface<int>"
  "^(vtable for |typeinfo for |typeinfo name for )?corvala::propertybindings::ListModelInterface<double>")

execute_process(COMMAND "${NM}" -D --defined-only -C "${LIBRARY}"
  OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "(^|\n)[0-9a-f]* *[A-Za-z] " "\\1" symbols "${table}")
string(REGEX MATCHALL "[^\n]+" unexpected "${symbols}")

set(missing "")
foreach(pattern IN LISTS allowed)
  set(found ${unexpected})
  list(FILTER found INCLUDE REGEX "${pattern}")
  if(NOT found)
    list(APPEND missing "${pattern}")
  endif()
  list(FILTER unexpected EXCLUDE REGEX "${pattern}")
endforeach()
if(unexpected OR missing)
  list(JOIN unexpected "\n  " unexpected)
  list(JOIN missing "\n  " missing)
  message(FATAL_ERROR "${LIBRARY}\nexports, but must not:\n  ${unexpected}\n"
    "does not export:\n  ${missing}")
endif()
