#include "status/answer.h"

#include <windows.h>

#include "lib/certificates/certificate_import.h"
#include "status/application_status.h"
#include "status/certificate_status.h"
#include "status/driver_package_status.h"
#include "status/interface_status.h"
#include "status/service_status.h"
#include "status/system_status.h"

namespace kelvo {

namespace {

struct StoreKind {
  const char* kind;
  const wchar_t* storeName;
};

constexpr StoreKind kPublisher = {"publisher", kTrustedPublisherStore};
constexpr StoreKind kIntermediate = {"intermediate", kIntermediateCaStore};

void AppendCertificates(const StoreKind& store, const std::vector<WString>& files,
                        std::vector<Item>& items) {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  for (const WString& file : files) {
    items.push_back(DescribeCertificate(store.kind, file,
                                        QueryCertificate(file.c_str(), store.storeName), now));
  }
}

void AppendStore(const StoreKind& store, std::vector<Item>& items) {
  items.push_back(DescribeStore(store.kind, store.storeName, QueryStore(store.storeName)));
}

std::vector<Item> AnswerInGeneral() {
  std::vector<Item> items = DescribeApplications(QueryApplicationList(), {});
  AppendStore(kPublisher, items);
  AppendStore(kIntermediate, items);
  // Without its device: the list of devices takes setupapi.dll, which makes a plain call slower.
  items.push_back(DescribeService({}, QueryBluetoothLibrary()));
  items.push_back(DescribeInterface(QueryInterface()));
  items.push_back(DescribeSystem());
  return items;
}

}  // namespace

std::vector<Item> Answer(const Questions& questions) {
  if (questions.IsGeneral()) {
    return AnswerInGeneral();
  }
  std::vector<Item> items;
  if (!questions.applications.empty()) {
    items = DescribeApplications(QueryApplicationList(), questions.applications);
  }
  AppendCertificates(kPublisher, questions.publishers, items);
  AppendCertificates(kIntermediate, questions.intermediates, items);
  for (const WString& inf : questions.driverPackages) {
    items.push_back(DescribeDriverPackage(inf, QueryDriverPackage(inf.c_str())));
  }
  if (questions.service) {
    items.push_back(DescribeService(QueryServiceDevice(), QueryBluetoothLibrary()));
  }
  return items;
}

}  // namespace kelvo
