#include "status/command_line.h"

// Makes the parser work without std::regex, whose code would be larger than the rest of the
// program.
#define CXXOPTS_NO_REGEX
#include <cxxopts.hpp>

#include <string_view>

namespace kelvo {

namespace {

constexpr const char* kNotes = R"(
Without options, or with --json alone, reports the applications that use the
service, the number of certificates in the stores TrustedPublisher and CA,
whether bthprops.cpl and difxapi.dll can be found, the version of Windows, and
whether the user is an administrator. This report does not say whether the
driver package, device and certificates of the service are present.

With --service, ignores the device nodes that Windows creates for paired remote
devices. Windows removes the service's own device node while the radio is off or
unplugged, and can take some time to create it after the service is registered:
in these cases "absent" proves nothing. --service has not been tested with a
real radio.

Exit code: 0 if everything asked for is present, 1 if something is absent, 2 if
the command line is wrong, 3 if something could not be checked (even if
something else is absent) or the output could not be written completely. Without
a standard output, the program only returns the exit code.
)";

// Encodes an argument for the parser, which takes bytes. A UTF-16 unit outside ASCII becomes three
// bytes with 4, 6 and 6 bits of the unit; each byte is 0x80 or higher. FromBytes restores every
// argument exactly, even one with unpaired surrogates.
std::string ToBytes(std::wstring_view argument) {
  std::string bytes;
  for (const wchar_t unit : argument) {
    if (unit < 0x80) {
      bytes += static_cast<char>(unit);
    } else {
      bytes += {static_cast<char>(0x80 | unit >> 12), static_cast<char>(0x80 | (unit >> 6 & 0x3F)),
                static_cast<char>(0x80 | (unit & 0x3F))};
    }
  }
  return bytes;
}

WString FromBytes(std::string_view bytes) {
  WString argument;
  while (!bytes.empty()) {
    const auto low = [&bytes](std::size_t i) { return static_cast<unsigned>(bytes[i]) & 0x3F; };
    const bool isAscii = (static_cast<unsigned>(bytes[0]) & 0x80) == 0;
    argument +=
        WString(1, static_cast<wchar_t>(isAscii ? static_cast<unsigned>(bytes[0])
                                                : (low(0) & 0xF) << 12 | low(1) << 6 | low(2)));
    bytes.remove_prefix(isAscii ? 1 : 3);
  }
  return argument;
}

cxxopts::Options MakeParser() {
  cxxopts::Options parser("sorrel_status.exe",
                          "Reports which parts of the hands-free service are installed on this"
                          " computer. Changes nothing.\n");
  parser.custom_help(
      "[--publisher FILE]... [--intermediate FILE]... [--inf FILE]...\n"
      "                    [--application NAME]... [--service] [--json]");
  const auto text = [] { return cxxopts::value<std::string>(); };
  parser.add_options()  //
      ("publisher", "check TrustedPublisher for FILE's certificate", text(), "FILE")(
          "intermediate", "check the store CA for FILE's certificate", text(), "FILE")(
          "inf", "check the published INF files for a copy of FILE", text(), "FILE")(
          "application", "check the list of applications for this name", text(), "NAME")(
          "service", "check for the Bluetooth device of the service")(
          "json", "write one JSON object in ASCII")("help", "show this text")(
          "version", "show the program's version");
  return parser;
}

// Returns false when an option that takes no value was given a value other than "true".
bool TakeOption(const std::string& option, const WString& value, Questions& questions) {
  if (option == "publisher") {
    questions.publishers.push_back(value);
  } else if (option == "intermediate") {
    questions.intermediates.push_back(value);
  } else if (option == "inf") {
    questions.driverPackages.push_back(value);
  } else if (option == "application") {
    questions.applications.push_back(value);
  } else {
    // The parser stores "true" for an option that was given no value.
    return value == L"true";
  }
  return true;
}

CommandLine Wrong(const WString& mistake) {
  CommandLine line;
  line.kind = CommandLine::Kind::kWrong;
  line.mistake = mistake;
  return line;
}

CommandLine FromParsed(const cxxopts::ParseResult& parsed) {
  if (!parsed.unmatched().empty()) {
    return Wrong(L"Unexpected word '" + FromBytes(parsed.unmatched().front()) + L"'");
  }
  CommandLine line;
  line.asJson = parsed.count("json") != 0;
  line.questions.service = parsed.count("service") != 0;
  for (const cxxopts::KeyValue& argument : parsed.arguments()) {
    if (!TakeOption(argument.key(), FromBytes(argument.value()), line.questions)) {
      return Wrong(L"Option '" + FromBytes(argument.key()) + L"' takes no value");
    }
  }
  if (parsed.count("version") != 0) {
    line.kind = CommandLine::Kind::kVersion;
  }
  if (parsed.count("help") != 0) {
    line.kind = CommandLine::Kind::kHelp;
  }
  return line;
}

}  // namespace

CommandLine ParseCommandLine(int count, const wchar_t* const* arguments) {
  const auto size = static_cast<std::size_t>(count);
  std::vector<std::string> bytes(size);
  std::vector<const char*> pointers(size);
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = ToBytes(arguments[i]);
    pointers[i] = bytes[i].c_str();
  }
  try {
    return FromParsed(MakeParser().parse(count, pointers.data()));
  } catch (const cxxopts::exceptions::parsing& mistake) {
    return Wrong(FromBytes(mistake.what()));
  }
}

std::string UsageText() { return MakeParser().help() + kNotes; }

}  // namespace kelvo
