#pragma once

#include <windows.h>

#include <aclapi.h>

#include <string>
#include <string_view>
#include <type_traits>

namespace kelvo::test {

// Shows an argument: a number, an LPCSTR or LPCWSTR (of a full path, the part from its last
// backslash), a registry key, or fields of a structure below. Null is "0". The rest is "given".
template <typename Argument>
std::string Shown(Argument argument) {
  if constexpr (std::is_same_v<Argument, SIZE_T>) {
    return "size";  // some sizes, such as the size of a token's groups, depend on the machine
  } else if constexpr (std::is_integral_v<Argument> || std::is_enum_v<Argument>) {
    return std::to_string(static_cast<long long>(argument));
  } else if constexpr (std::is_same_v<Argument, LPCSTR> || std::is_same_v<Argument, LPCWSTR>) {
    if (IS_INTRESOURCE(argument)) {
      return std::to_string(reinterpret_cast<ULONG_PTR>(argument));
    }
    const std::basic_string_view text(argument);
    std::string shown;
    for (const auto unit : text.substr(text.find(':') == 1 ? text.rfind('\\') : 0)) {
      shown += static_cast<char>(unit);
    }
    return "'" + shown + "'";
  } else if (argument == nullptr) {
    return "0";
  } else if constexpr (std::is_same_v<Argument, HKEY>) {
    const auto predefined = static_cast<LONG>(reinterpret_cast<LONG_PTR>(argument));
    return predefined < 0 ? std::to_string(predefined - static_cast<LONG>(0x80000000)) : "key";
  } else if constexpr (std::is_same_v<Argument, TOKEN_PRIVILEGES*>) {
    char name[64] = "";
    DWORD length = sizeof(name);
    LookupPrivilegeNameA(nullptr, &argument->Privileges[0].Luid, name, &length);
    return name + (" attributes " + Shown(argument->Privileges[0].Attributes));
  } else if constexpr (std::is_same_v<Argument, SECURITY_ATTRIBUTES*>) {
    return "inheritance " + Shown(argument->bInheritHandle);
  } else if constexpr (std::is_same_v<Argument, STARTUPINFOW*>) {
    return "size " + Shown(argument->cb) + " on " + Shown(LPCWSTR{argument->lpDesktop});
  } else if constexpr (std::is_same_v<Argument, EXPLICIT_ACCESSW*>) {
    return "mode " + Shown(argument->grfAccessMode) + " trustee " +
           Shown(argument->Trustee.TrusteeType) + " inheritance " + Shown(argument->grfInheritance);
  } else {
    return "given";
  }
}

template <typename... Arguments>
std::string ShownCall(const std::string& function, Arguments... arguments) {
  std::string call = function + "(";
  ((call += Shown(arguments) + ", "), ...);
  return call.substr(0, call.rfind(',')) + ")";
}

}  // namespace kelvo::test
