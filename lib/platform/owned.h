#pragma once

#include <windows.h>

#include <type_traits>
#include <utility>

namespace kelvo {

// Owns one handle. The destructor closes the handle. An Owned object can be moved but not copied.
// `Kind` is a class with these members:
//   using Handle = ...;             the Windows type of the handle
//   static Handle None();           returns the value that means "no handle"
//   static void Close(Handle);      closes a handle; never called with None()
template <typename Kind>
class Owned {
 public:
  // The Windows type of the handle.
  using Handle = typename Kind::Handle;

  Owned() = default;
  // Takes ownership of `handle`.
  explicit Owned(Handle handle) : handle_(handle) {}
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  // Takes ownership of the handle of `other`, which then has none.
  Owned(Owned&& other) noexcept : handle_(other.release()) {}
  Owned& operator=(Owned&& other) noexcept {
    reset(other.release());
    return *this;
  }

  // Closes the handle.
  ~Owned() { reset(); }

  // Returns whether there is a handle.
  explicit operator bool() const { return handle_ != Kind::None(); }
  // Returns the handle, which this object continues to own.
  [[nodiscard]] Handle get() const { return handle_; }

  // Closes the handle, if there is one. Returns the address at which a Windows function can store a
  // new handle.
  [[nodiscard]] Handle* Receive() {
    reset();
    return &handle_;
  }

  // Call KeepIf after a Windows function that got the pointer from Receive(), if that function may
  // store a value even when it fails. `succeeded` tells whether the function succeeded. If
  // `succeeded` is true, this object keeps the handle that the function stored. If `succeeded` is
  // false, this object discards any value that the function stored, and closes nothing. Returns
  // `succeeded`.
  bool KeepIf(bool succeeded) {
    if (!succeeded) {
      release();
    }
    return succeeded;
  }

  // Gives up ownership of the handle and returns it. The caller must then close the handle.
  Handle release() { return std::exchange(handle_, Kind::None()); }

  // Closes the current handle, if there is one, and takes ownership of `handle`. When called
  // without an argument, leaves the object without a handle.
  void reset(Handle handle = Kind::None()) {
    const Handle old = std::exchange(handle_, handle);
    if (old != Kind::None()) {
      Kind::Close(old);
    }
  }

 private:
  Handle handle_ = Kind::None();
};

namespace internal {

struct KernelObjectTraits {
  using Handle = HANDLE;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { CloseHandle(handle); }
};

struct FileTraits {
  using Handle = HANDLE;
  static Handle None() { return INVALID_HANDLE_VALUE; }
  static void Close(Handle handle) { CloseHandle(handle); }
};

template <typename Content>
struct LocalMemoryTraits {
  using Handle = Content*;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { LocalFree(const_cast<std::remove_cv_t<Content>*>(handle)); }
};

template <typename Content>
struct ProcessHeapMemoryTraits {
  using Handle = Content*;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { HeapFree(GetProcessHeap(), 0, handle); }
};

struct FileSearchTraits {
  using Handle = HANDLE;
  static Handle None() { return INVALID_HANDLE_VALUE; }
  static void Close(Handle handle) { FindClose(handle); }
};

}  // namespace internal

// A handle to a process, thread, token, mutex or event. Closed with CloseHandle; null means "no
// handle".
using OwnedKernelObject = Owned<internal::KernelObjectTraits>;

// A handle from CreateFileW. Closed with CloseHandle; INVALID_HANDLE_VALUE means "no handle".
using OwnedFile = Owned<internal::FileTraits>;

// A search handle from FindFirstFileW. Closed with FindClose; INVALID_HANDLE_VALUE means "no
// handle".
using OwnedFileSearch = Owned<internal::FileSearchTraits>;

// Memory from LocalAlloc, or from a Windows function that allocates such memory for its caller.
// Freed with LocalFree; null means that no memory is owned.
template <typename Content>
using OwnedLocalMemory = Owned<internal::LocalMemoryTraits<Content>>;

// Memory from HeapAlloc in the process heap (GetProcessHeap). Freed with HeapFree; null means that
// no memory is owned.
template <typename Content>
using OwnedProcessHeapMemory = Owned<internal::ProcessHeapMemoryTraits<Content>>;

}  // namespace kelvo
