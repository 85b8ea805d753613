#pragma once

namespace kelvo {

// Receives what TraceMessage is given. Whatever exception leaves it, C++ or structured, is
// swallowed.
using TraceSink = void (*)(const wchar_t* tag, const wchar_t* message);

// Makes `sink` the destination of all traced messages of this process, on whatever thread they
// come; null takes it away again, which is the state at the start.
void SetTraceSink(TraceSink sink);

// Hands both NUL-terminated texts to the sink: the part of the library that speaks and what it has
// to say, without a line break. Does nothing when there is no sink.
void TraceMessage(const wchar_t* tag, const wchar_t* message);

}  // namespace kelvo
