// What comes from files: paths, version resources, certificates.

#include <cstdlib>
#include <fstream>
#include <memory>
#include <new>

#include "lib/certificates/certificate_import.h"
#include "lib/paths/file_exists.h"
#include "lib/sysinfo/file_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "tests/support/replaced_import.h"
#include "torture/input.h"

namespace kelvo::torture {

namespace {

void NameFile(Input& input) {
  FileExists(GuardedText(input.Text(300, input.Chance() ? L"\\/.:* ?aC" : L""), input.Chance()));
}

std::string ReadFile(const char* path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The version resource of a sound file.
std::string SoundResource() {
  DWORD ignored = 0;
  std::string resource(GetFileVersionInfoSizeW(L"versioned_english.dll", &ignored), '\0');
  GetFileVersionInfoW(L"versioned_english.dll", 0, static_cast<DWORD>(resource.size()),
                      resource.data());
  return resource;
}

// The resource that the readers are given, in memory next to a page without access.
std::string resource;
std::unique_ptr<GuardedMemory> guarded;
std::size_t guardedSize = 0;
// Chooses the place and the length that a hostile file claims; null for an honest one.
Input* liar = nullptr;

// Once and for all: a fault of Wine's would skip the end of a block.
void ReplaceReaders() {
  static REPLACE(GetFileVersionInfoSizeW,
                 [](auto...) { return static_cast<DWORD>(resource.size()); });
  static REPLACE(GetFileVersionInfoW, [](auto, auto, auto, DWORD size, void* data) {
    std::memcpy(data, resource.data(), std::min<std::size_t>(size, resource.size()));
    return TRUE;
  });
  static REPLACE(VerQueryValueW,
                 [](auto original, const void* block, auto path, void** found, UINT* length) {
                   if (liar == nullptr) {
                     return original(block, path, found, length);
                   }
                   const std::size_t place = liar->Number(resource.size() / 2) * 2;
                   *found = static_cast<char*>(const_cast<void*>(block)) + place;
                   *length = static_cast<UINT>(liar->Number(liar->Chance() ? 100 : 0xFFFFFFFF));
                   return TRUE;
                 });
  static REPLACE(GlobalAlloc, [](auto...) -> HGLOBAL { return guarded.get(); });
  static REPLACE(GlobalLock, [](auto...) -> void* { return guarded->As<void>(); });
  static REPLACE(GlobalUnlock, [](auto...) { return TRUE; });
  static REPLACE(GlobalFree, [](auto...) -> HGLOBAL { return nullptr; });
}

void ReadVersion(Input& input) {
  guardedSize = 0;
  static const std::string sound = SoundResource();
  ReplaceReaders();
  resource = sound;
  input.Mutate(resource);
  resource.resize((resource.size() + 8) / 8 * 8);
  guarded = std::make_unique<GuardedMemory>(resource.size(), input.Chance());
  liar = input.Chance() ? &input : nullptr;
  guardedSize = resource.size();
  const int order = CompareFileVersion(L"", 1, 2, 3, 4);
  GetFileVersionText(L"");
  guardedSize = 0;
  Expect(order >= -1 && order <= 2, "an order");
}

// A process of its own: crypt32 may fall over by itself.
void ImportCertificate(Input& input) {
  static const std::string sound[] = {ReadFile("binary.cer"), ReadFile("base64.cer"),
                                      ReadFile("bundle.p7b")};
  std::string bytes = sound[input.Number(2)];
  input.Mutate(bytes);
  // From no bytes at all Wine's crypt32 makes whatever lies on its stack.
  std::ofstream("mutated.cer", std::ios::binary) << (bytes.empty() ? "x" : bytes);
  ImportCertToTrustedPublishers(L"mutated.cer");
}

}  // namespace

std::vector<Target> FileTargets() {
  return {{"paths", NameFile, "ntdll"},
          {"version resources", ReadVersion, "kernelbase ntdll"},
          {"certificates", ImportCertificate, "crypt32"}};
}

}  // namespace kelvo::torture

// The one block of that size is the guarded one.
void* operator new(std::size_t size) {
  using namespace kelvo::torture;
  return size == guardedSize ? guarded->As<void>() : std::malloc(size);
}
void operator delete(void* block) noexcept {
  using namespace kelvo::torture;
  if (guarded == nullptr || block != guarded->As<void>()) {
    std::free(block);
  }
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
