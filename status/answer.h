#pragma once

namespace kelvo {

// Runs a command line of sorrel_status.exe: checks what it names or, when it names nothing,
// everything that needs no file, and writes the report to standard output. Changes nothing. `words`
// are the `count` arguments, the first of which is the program's own path.
//
// There is an item for each thing in the order application, publisher, intermediate, driver
// package, service, interface, system; several of a kind in the order of the command line.
//
// Returns the exit code:
//   0  everything asked for is present
//   1  something is absent
//   2  the command line is wrong; standard error says why and how to call the program
//   3  something could not be checked, even if something else is absent; not all of the report
//   could
//      be written; or memory ran out, which standard error says
// Without a standard output the exit code is the only answer.
int AnswerCommandLine(int count, const wchar_t* const* words);

}  // namespace kelvo
