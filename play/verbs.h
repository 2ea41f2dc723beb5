// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/script_run.h"

#include <vector>

namespace corvala::play {

/// One thing that a line of a script can say.
struct Verb
{
    const char* name;
    std::vector<const char*> keys; ///< what may stand beside the verb
    void (*play)(ScriptRun& run, const Arguments& arguments);
};

std::vector<Verb> documentVerbs();
std::vector<Verb> dialogVerbs();
std::vector<Verb> cellVerbs();
std::vector<Verb> promptVerbs();
std::vector<Verb> lookingVerbs();

/// The verb of a line. Throws a ScriptError when there is none, or a key does not belong to it; the
/// same holds for the lines inside the line.
const Verb& verbOf(const nlohmann::json& line);

} // namespace corvala::play
