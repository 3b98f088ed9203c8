#ifndef QUILLBASE_OPENFILE_H
#define QUILLBASE_OPENFILE_H

#include "win32/Win32.h"

namespace quillbase {

/// A file opened to read, shared with readers and writers, and closed again at the end of the
/// object.
class OpenFile {
  public:
    explicit OpenFile(const char* path)
        : handle_(CreateFileA(path, GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~OpenFile() {
        if (IsOpen()) CloseHandle(handle_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }

  private:
    HANDLE handle_;
};

}  // namespace quillbase

#endif
