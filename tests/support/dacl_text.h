#pragma once

#include <windows.h>

#include <accctrl.h>

#include <string>

namespace kelvo::test {

// An object's DACL as SDDL; "none" when it has none.
std::wstring ReadDacl(HANDLE object, SE_OBJECT_TYPE type = SE_WINDOW_OBJECT);
void WriteDacl(HANDLE object, const std::wstring& sddl, SE_OBJECT_TYPE type = SE_WINDOW_OBJECT);

// The SID of this process's user as text.
std::wstring CurrentUserSid();

}  // namespace kelvo::test
