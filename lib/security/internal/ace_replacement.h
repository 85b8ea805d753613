#pragma once

#include <windows.h>

#include <vector>

namespace kelvo::internal {

// What decides the place of an entry in the new list of a file.
struct AceFacts {
  bool isInherited = false;
  bool isOfAccount = false;  // names the account that is given new rights
};

// Stands for the added entry.
constexpr DWORD kAddedAce = MAXDWORD;

// The entries of the new list, in order, as indices into the old one: the explicit entries of other
// accounts, then kAddedAce, then everything from the first inherited entry on, also what names the
// account and an explicit entry that stands there against the rules. Linear in the entries.
std::vector<DWORD> ReplaceAcesOfAccount(const std::vector<AceFacts>& aces);

}  // namespace kelvo::internal
