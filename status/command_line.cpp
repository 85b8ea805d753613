#include "status/command_line.h"

// Its regular expressions would take more room than all the rest.
#define CXXOPTS_NO_REGEX
#include <cxxopts.hpp>

#include <string_view>

namespace kelvo {

namespace {

constexpr const char* kExitCodes = R"(
Without options: all that can be told without a file to compare.
Exit code: 0 all is present, 1 something is absent, 2 wrong command line,
3 something could not be looked at (whatever else is absent).
)";

// The parser takes bytes. Each unit outside ASCII becomes three bytes outside ASCII, unpaired
// surrogates too, so that every word comes back as it was.
std::string ToBytes(std::wstring_view word) {
  std::string bytes;
  for (const wchar_t unit : word) {
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
  WString word;
  while (!bytes.empty()) {
    const auto low = [&bytes](std::size_t i) { return static_cast<unsigned>(bytes[i]) & 0x3F; };
    const bool isAscii = (static_cast<unsigned>(bytes[0]) & 0x80) == 0;
    word += WString(1, static_cast<wchar_t>(isAscii ? static_cast<unsigned>(bytes[0])
                                                    : (low(0) & 0xF) << 12 | low(1) << 6 | low(2)));
    bytes.remove_prefix(isAscii ? 1 : 3);
  }
  return word;
}

cxxopts::Options MakeParser() {
  cxxopts::Options parser("sorrel_status.exe",
                          "Tells what of the Tessalin hands-free service stands on this computer."
                          " Changes nothing.\n");
  parser.custom_help(
      "[--publisher FILE] [--intermediate FILE] [--inf FILE] [--application NAME]... [--service]"
      " [--json]");
  const auto word = [] { return cxxopts::value<std::string>(); };
  parser.add_options()  //
      ("publisher", "the file's certificate is in the store TrustedPublisher", word(), "FILE")(
          "intermediate", "the file's certificate is in the store CA", word(), "FILE")(
          "inf", "Windows has taken up the driver package of this INF file", word(), "FILE")(
          "application", "the application is recorded as a dependant", word(), "NAME")(
          "service", "the Bluetooth stack has a device for the service")(
          "json", "answer with one JSON object")("help", "show this text")(
          "version", "show the program's version");
  return parser;
}

void TakeOption(const std::string& option, const WString& value, CommandLine& line) {
  Questions& questions = line.questions;
  if (option == "publisher") {
    questions.publishers.push_back(value);
  } else if (option == "intermediate") {
    questions.intermediates.push_back(value);
  } else if (option == "inf") {
    questions.driverPackages.push_back(value);
  } else if (option == "application") {
    questions.applications.push_back(value);
  }
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
    TakeOption(argument.key(), FromBytes(argument.value()), line);
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

CommandLine ParseCommandLine(int count, const wchar_t* const* words) {
  const auto size = static_cast<std::size_t>(count);
  std::vector<std::string> bytes(size);
  std::vector<const char*> pointers(size);
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = ToBytes(words[i]);
    pointers[i] = bytes[i].c_str();
  }
  try {
    return FromParsed(MakeParser().parse(count, pointers.data()));
  } catch (const cxxopts::exceptions::parsing& mistake) {
    return Wrong(FromBytes(mistake.what()));
  }
}

std::string UsageText() { return MakeParser().help() + kExitCodes; }

}  // namespace kelvo
