#include "lib/security/internal/ace_replacement.h"

namespace kelvo::internal {

std::vector<DWORD> ReplaceAcesOfAccount(const std::vector<AceFacts>& aces) {
  std::vector<DWORD> order;
  order.reserve(aces.size() + 1);
  DWORD index = 0;
  for (; index < aces.size() && !aces[index].isInherited; ++index) {
    if (!aces[index].isOfAccount) {
      order.push_back(index);
    }
  }
  order.push_back(kAddedAce);
  for (; index < aces.size(); ++index) {
    order.push_back(index);
  }
  return order;
}

}  // namespace kelvo::internal
