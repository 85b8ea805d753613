#include "lib/sysinfo/internal/product_edition.h"

namespace kelvo::internal {

namespace {

struct Edition {
  DWORD productType;
  const wchar_t* text;
};

constexpr Edition kEditions[] = {
    {PRODUCT_ULTIMATE, L"Ultimate Edition"},
    {PRODUCT_HOME_BASIC, L"Home Basic Edition"},
    {PRODUCT_HOME_PREMIUM, L"Home Premium Edition"},
    {PRODUCT_ENTERPRISE, L"Enterprise Edition"},
    {PRODUCT_BUSINESS, L"Business Edition"},
    {PRODUCT_STANDARD_SERVER, L"Standard Edition"},
    {PRODUCT_DATACENTER_SERVER, L"Datacenter Edition"},
    {PRODUCT_SMALLBUSINESS_SERVER, L"Small Business Server"},
    {PRODUCT_ENTERPRISE_SERVER, L"Enterprise Edition"},
    {PRODUCT_STARTER, L"Starter Edition"},
    {PRODUCT_DATACENTER_SERVER_CORE, L"Datacenter Edition (core installation)"},
    {PRODUCT_STANDARD_SERVER_CORE, L"Standard Edition (core installation)"},
    {PRODUCT_ENTERPRISE_SERVER_CORE, L"Enterprise Edition (core installation)"},
    {PRODUCT_ENTERPRISE_SERVER_IA64, L"Enterprise Edition for Itanium-based Systems"},
    {PRODUCT_WEB_SERVER, L"Web Server Edition"},
    {PRODUCT_CLUSTER_SERVER, L"Cluster Server Edition"},
    {PRODUCT_SMALLBUSINESS_SERVER_PREMIUM, L"Small Business Server Premium Edition"},
    {PRODUCT_PROFESSIONAL, L"Professional"},
};

}  // namespace

const wchar_t* ProductEditionText(DWORD productType) {
  for (const Edition& edition : kEditions) {
    if (edition.productType == productType) {
      return edition.text;
    }
  }
  return L"";
}

}  // namespace kelvo::internal
