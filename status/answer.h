#pragma once

namespace kelvo {

// Carries out a command line of sorrel_status.exe. The first of the `count` arguments is the
// program's own path. Changes nothing on the computer.
//
// With --help or --version, writes the usage text or the version to standard output. Without these
// options, checks the items that the command line names, and writes the report to standard output.
// If the command line names no item, writes a general report. This report covers the list of
// applications, the certificate stores "TrustedPublisher" (item "publisher") and "CA" (item
// "intermediate"), bthprops.cpl (item "service"), difxapi.dll (item "interface") and Windows itself
// (item "system").
//
// In every report, the items are in this order: application, publisher, intermediate, driver
// package, service, interface, system. Items of the same kind are in the order of the command line.
// In a general report, the applications are in the order of the list of applications.
//
// Returns the exit code:
//   0  everything asked for is present
//   1  something is absent
//   2  the command line is wrong; standard error has the reason and the usage text
//   3  something could not be checked (then 3 is returned even if something else is absent), or
//      part of the output could not be written, or memory ran out (in this last case, standard
//      error says so)
// If the process has no standard output, no report is written. The exit code is not affected.
int AnswerCommandLine(int count, const wchar_t* const* arguments);

}  // namespace kelvo
