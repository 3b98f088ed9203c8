#include "win32/File.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "win32/Thread.h"

namespace {

// A handle is the file descriptor itself: opening a table must not cost an allocation.
HANDLE ToHandle(int descriptor) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<HANDLE>(LONG_PTR{descriptor});
}

int ToDescriptor(HANDLE file) { return static_cast<int>(reinterpret_cast<LONG_PTR>(file)); }

template <typename Call>
auto Retry(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

}  // namespace

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD, void*, DWORD disposition, DWORD,
                   HANDLE model) {
    constexpr mode_t kReadWriteForAll = 0666;
    constexpr mode_t kAllPermissions = 07777;
    int flags = O_CLOEXEC | O_NONBLOCK;
    if (access == GENERIC_READ && disposition == OPEN_EXISTING) {
        flags |= O_RDONLY;
    } else if (access == GENERIC_WRITE && disposition == CREATE_NEW) {
        flags |= O_WRONLY | O_CREAT | O_EXCL;
    } else {
        return INVALID_HANDLE_VALUE;
    }
    const int descriptor = Retry([&] { return ::open(path, flags, kReadWriteForAll); });
    if (descriptor < 0) return INVALID_HANDLE_VALUE;
    struct stat status {};
    if (model != nullptr && ::fstat(ToDescriptor(model), &status) == 0) {
        // Where the permissions can't be given the file is good all the same.
        static_cast<void>(::fchmod(descriptor, status.st_mode & kAllPermissions));
    }
    return ToHandle(descriptor);
}

DWORD GetFinalPathNameByHandleA(HANDLE file, LPSTR buffer, DWORD size, DWORD) {
    const std::string link = "/proc/self/fd/" + std::to_string(ToDescriptor(file));
    const ssize_t length = ::readlink(link.c_str(), buffer, size);
    if (length < 0) return 0;
    if (static_cast<DWORD>(length) >= size) return size;
    buffer[length] = '\0';
    return static_cast<DWORD>(length);
}

BOOL GetFileSizeEx(HANDLE file, LARGE_INTEGER* size) {
    struct stat status {};
    if (::fstat(ToDescriptor(file), &status) != 0 || !S_ISREG(status.st_mode)) return FALSE;
    size->QuadPart = status.st_size;
    return TRUE;
}

BOOL ReadFile(HANDLE file, void* buffer, DWORD size, DWORD* done, void*) {
    const ssize_t count = Retry([&] { return ::read(ToDescriptor(file), buffer, size); });
    *done = count < 0 ? 0 : static_cast<DWORD>(count);
    return count < 0 ? FALSE : TRUE;
}

BOOL WriteFile(HANDLE file, const void* buffer, DWORD size, DWORD* done, void*) {
    *done = 0;
    while (*done < size) {
        const char* rest = static_cast<const char*>(buffer) + *done;
        const ssize_t count =
            Retry([&] { return ::write(ToDescriptor(file), rest, size - *done); });
        if (count <= 0) return FALSE;
        *done += static_cast<DWORD>(count);
    }
    return TRUE;
}

BOOL FlushFileBuffers(HANDLE file) { return ::fsync(ToDescriptor(file)) == 0 ? TRUE : FALSE; }

BOOL CloseHandle(HANDLE handle) {
    if (win32::IsThread(handle)) {
        win32::CloseThread(handle);
        return TRUE;
    }
    return ::close(ToDescriptor(handle)) == 0 ? TRUE : FALSE;
}

BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags) {
    if ((flags & MOVEFILE_REPLACE_EXISTING) == 0 && ::access(to, F_OK) == 0) return FALSE;
    return std::rename(from, to) == 0 ? TRUE : FALSE;
}

BOOL DeleteFileA(LPCSTR path) { return ::unlink(path) == 0 ? TRUE : FALSE; }

DWORD GetFileAttributesA(LPCSTR path) {
    struct stat status {};
    if (::stat(path, &status) != 0) return INVALID_FILE_ATTRIBUTES;
    return S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
}
