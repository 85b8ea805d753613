#include "tool/install.h"

#include <setupapi.h>

#include <algorithm>
#include <iterator>

#include "lib/certificates/certificate_import.h"
#include "tool/console_report.h"
#include "tool/dependent_applications.h"
#include "tool/driver_interface.h"
#include "tool/driver_privilege.h"
#include "tool/handsfree_service.h"

namespace kelvo {

namespace {

struct DriverOutcome {
  DWORD code;
  const wchar_t* text;
};

constexpr DriverOutcome kDriverOutcomes[] = {
    {ERROR_SUCCESS, L"INFO: Driver Install Success\n"},
    {ERROR_NO_SUCH_DEVINST, L"INFO: Driver preinstalled OK\n"},
    {ERROR_NO_DEVICE_ID, L"INFO: Driver preinstalled OK\n"},
    {ERROR_NO_MORE_ITEMS, L"INFO: Driver is installed - No Update needed\n"},
    {ERROR_AUTHENTICODE_TRUST_NOT_ESTABLISHED, L"ERR: The drivers publisher is not trusted\n"},
};

void ReportDriverFailure(DWORD code) {
  Report(L"ERR: DriverPackageInstall Error: %08lX - %s\n", code, FormatSystemMessage(code).c_str());
}

void ReportDriverOutcome(DWORD code) {
  const auto* const outcome = std::ranges::find(kDriverOutcomes, code, &DriverOutcome::code);
  if (outcome != std::end(kDriverOutcomes)) {
    Report(outcome->text);
  } else {
    ReportDriverFailure(code);
  }
}

struct CertificateStep {
  DWORD (*import)(const wchar_t* file);
  const wchar_t* okText;
  const wchar_t* errorText;
};

constexpr CertificateStep kTrustPublisher = {
    ImportCertToTrustedPublishers, L"OK: ImportCertToTrustedPublishers '%s' Import OK\n",
    L"ERR: ImportCertToTrustedPublishers '%s' Error: %08lX - %s\n"};
constexpr CertificateStep kTrustIntermediate = {
    ImportCertToIntermediateCA, L"OK: ImportCertToIntermediateCA '%s' Import OK\n",
    L"ERR: ImportCertToIntermediateCA '%s' Error: %08lX - %s\n"};

void ImportCertificate(const CertificateStep& step, const wchar_t* file) {
  const DWORD error = step.import(file);
  if (error == ERROR_SUCCESS) {
    Report(step.okText, file);
  } else {
    Report(step.errorText, file, error, FormatSystemMessage(error).c_str());
  }
}

void InstallDriverPackage(const wchar_t* infPath) {
  DriverInterface driver;
  if (const DWORD error = BindDriverInterface(driver); error != ERROR_SUCCESS) {
    ReportDriverFailure(error);
    return;
  }
  driver.setLogCallback(DifxLogCallback, nullptr);
  BOOL needReboot = FALSE;
  ReportDriverOutcome(driver.installPackage(infPath, DRIVER_PACKAGE_SILENT, nullptr, &needReboot));
  if (needReboot != FALSE) {
    Report(L"Reboot required\n");
  }
  driver.setLogCallback(nullptr, nullptr);
}

}  // namespace

DWORD Install(const wchar_t* infPath, const wchar_t* publisherCertFile,
              const wchar_t* intermediateCertFile, const wchar_t* appName) {
  EnableLoadDriverPrivilege();
  ImportCertificate(kTrustPublisher, publisherCertFile);
  ImportCertificate(kTrustIntermediate, intermediateCertFile);
  InstallDriverPackage(infPath);
  AddDependentApplication(appName);
  RegisterHandsfreeService(true);
  return ERROR_SUCCESS;
}

}  // namespace kelvo
