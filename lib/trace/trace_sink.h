#pragma once

namespace kelvo {

// A sink: a function that receives the arguments of TraceMessage. TraceMessage swallows a C++ or
// structured exception that leaves the sink.
using TraceSink = void (*)(const wchar_t* tag, const wchar_t* message);

// Sets the sink for the messages of all threads of this process. Messages are discarded while the
// sink is null, as it is initially. Example:
//   SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
//     DebugTrace(L"%s: %s", tag, message);  // lib/trace/debug_trace.h
//   });
void SetTraceSink(TraceSink sink);

// Passes two NUL-terminated strings to the sink: `tag` names the part of the library that sends the
// message; `message` is one line without a line break. Does nothing when there is no sink.
void TraceMessage(const wchar_t* tag, const wchar_t* message);

}  // namespace kelvo
