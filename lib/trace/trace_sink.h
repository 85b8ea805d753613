#pragma once

namespace kelvo {

// Receives the arguments of TraceMessage. A C++ or structured exception that leaves it is
// swallowed.
using TraceSink = void (*)(const wchar_t* tag, const wchar_t* message);

// Sets the destination of all messages traced in this process, on any thread. Null, which is the
// initial value, drops them.
//   SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
//     DebugTrace(L"%s: %s", tag, message);  // lib/trace/debug_trace.h
//   });
void SetTraceSink(TraceSink sink);

// Passes two NUL-terminated strings to the sink: `tag` names the part of the library, `message` is
// one line without a line break. Does nothing when there is no sink.
void TraceMessage(const wchar_t* tag, const wchar_t* message);

}  // namespace kelvo
