#pragma once

#include <windows.h>

#include <utility>

namespace kelvo::test {

namespace internal {
// The slot of this program's import table that calls to `function` go through; throws
// std::runtime_error when the program does not import it.
void** FindImportSlot(const char* function);
// Puts `target` into the slot and returns what was there.
void* SwapImportSlot(void** slot, void* target);
}  // namespace internal

// As long as it lives, every call that this program makes to an imported function goes to
// `replacement`: a lambda, which may keep state by reference, with the original function as its
// first parameter and then the function's own. Made by KELVO_REPLACE_IMPORT.
template <typename Function, typename Replacement>
class ReplacedImport;

template <typename Result, typename... Parameters, typename Replacement>
class ReplacedImport<Result(Parameters...), Replacement> {
 public:
  ReplacedImport(const char* name, Replacement replacement)
      : replacement_(std::move(replacement)),
        slot_(internal::FindImportSlot(name)),
        outer_(std::exchange(active_, this)),
        original_(reinterpret_cast<Original*>(
            internal::SwapImportSlot(slot_, reinterpret_cast<void*>(&Call)))) {}
  ReplacedImport(const ReplacedImport&) = delete;
  ReplacedImport& operator=(const ReplacedImport&) = delete;
  ~ReplacedImport() {
    internal::SwapImportSlot(slot_, reinterpret_cast<void*>(original_));
    active_ = outer_;
  }

 private:
  using Original = Result(Parameters...);
  static Result Call(Parameters... parameters) {
    return active_->replacement_(active_->original_, parameters...);
  }

  // Each lambda has a type, and so an `active_`, of its own.
  static inline ReplacedImport* active_ = nullptr;
  Replacement replacement_;
  void** slot_;
  ReplacedImport* outer_;
  Original* original_;
};

template <typename Function, typename Replacement>
ReplacedImport<Function, Replacement> ReplaceImport(const char* name, Replacement replacement) {
  return {name, std::move(replacement)};
}

// As long as it lives, GetProcAddress gives `function` for the export `name` of whatever module;
// null stands for a Windows that does not have it.
class ReplacedExport {
 public:
  ReplacedExport(const char* name, void* function);
  ReplacedExport(const ReplacedExport&) = delete;
  ReplacedExport& operator=(const ReplacedExport&) = delete;
  ~ReplacedExport();

 private:
  const char* name_;
};

}  // namespace kelvo::test

// const auto denied = KELVO_REPLACE_IMPORT(RegDeleteValueW, [](auto...) { return
// ERROR_ACCESS_DENIED; });
#define KELVO_REPLACE_IMPORT(function, ...) \
  ::kelvo::test::ReplaceImport<decltype(::function)>(#function, __VA_ARGS__)
