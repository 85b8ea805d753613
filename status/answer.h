#pragma once

namespace kelvo {

// Carries out a command line of sorrel_status.exe: looks at what it asks for, or at everything that
// needs no file when it asks for nothing in particular, changes nothing, and writes the report to
// standard output. `words` are the `count` words, the first of which is the program's own path.
//
// There is an item for each thing in the order application, publisher, intermediate, driver
// package, service, interface, system; several of a kind in the order of the words.
//
// Returns the exit code:
//   0  everything asked for is present
//   1  something is absent
//   2  the command line is wrong; standard error says why and how to call the program
//   3  something could not be looked at, whatever else is absent; not all of the report could be
//      written; or memory ran out, which standard error says
// Without a standard output, as in a process that was started without one, the code alone answers.
int AnswerCommandLine(int count, const wchar_t* const* words);

}  // namespace kelvo
