#pragma once

#include "tests/support/testing.h"

// The line of report.txt or windows_names.txt that is played: the machine, and what it does
// otherwise.
inline std::string given;
inline bool Has(const std::string& word) { return given.find(word) != std::string::npos; }
