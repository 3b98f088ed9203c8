#include "win32/ImageList.h"

#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "win32/Bitmap.h"
#include "win32/Error.h"
#include "win32/Module.h"

namespace {

using win32::Bitmap;

struct ImageList {
    int width = 0;
    int height = 0;
    std::vector<std::vector<DWORD>> images;
};

/// Objects under handles that are never used twice.
template <typename T>
class Objects {
  public:
    explicit Objects(UINT_PTR first) : next_(first) {}

    UINT_PTR Add(T object) {
        const std::lock_guard lock(mutex_);
        const UINT_PTR handle = next_ += 2;
        objects_.emplace(handle, std::make_shared<T>(std::move(object)));
        return handle;
    }

    std::shared_ptr<T> Find(const void* handle) {
        const std::lock_guard lock(mutex_);
        const auto found = objects_.find(reinterpret_cast<UINT_PTR>(handle));
        return found == objects_.end() ? nullptr : found->second;
    }

    bool Remove(const void* handle) {
        const std::lock_guard lock(mutex_);
        return objects_.erase(reinterpret_cast<UINT_PTR>(handle)) != 0;
    }

  private:
    std::mutex mutex_;
    std::unordered_map<UINT_PTR, std::shared_ptr<T>> objects_;
    UINT_PTR next_;
};

// Handles of different kinds are told apart by where they begin: odd ones are image lists.
Objects<Bitmap>& Bitmaps() {
    static Objects<Bitmap> bitmaps(0x20000);
    return bitmaps;
}

Objects<ImageList>& ImageLists() {
    static Objects<ImageList> lists(0x20001);
    return lists;
}

std::vector<DWORD> Cut(const Bitmap& bitmap, int left, int width, int height) {
    std::vector<DWORD> image;
    for (int y = 0; y < height; ++y) {
        for (int x = left; x < left + width; ++x) {
            // Below a bitmap that is too low the images are black.
            const bool inside = y < bitmap.height;
            const auto at = static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width) +
                            static_cast<std::size_t>(x);
            image.push_back(inside ? bitmap.pixels[at] : 0);
        }
    }
    return image;
}

}  // namespace

HANDLE LoadImageA(HINSTANCE module, LPCSTR name, UINT type, int, int, UINT flags) {
    if (type != IMAGE_BITMAP) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const HRSRC resource = FindResourceA(module, name, RT_BITMAP);
    if (resource == nullptr) return nullptr;
    const auto* data =
        static_cast<const unsigned char*>(LockResource(LoadResource(module, resource)));
    auto bitmap = win32::ReadBitmap({data, SizeofResource(module, resource)},
                                    (flags & LR_LOADTRANSPARENT) != 0);
    if (!bitmap) {
        SetLastError(ERROR_RESOURCE_DATA_NOT_FOUND);
        return nullptr;
    }
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number
    return reinterpret_cast<HANDLE>(Bitmaps().Add(std::move(*bitmap)));
}

BOOL DeleteObject(HGDIOBJ object) { return Bitmaps().Remove(object) ? TRUE : FALSE; }

HIMAGELIST ImageList_Create(int width, int height, UINT, int, int) {
    if (width <= 0 || height <= 0) return nullptr;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number
    return reinterpret_cast<HIMAGELIST>(ImageLists().Add({width, height, {}}));
}

BOOL ImageList_Destroy(HIMAGELIST list) { return ImageLists().Remove(list) ? TRUE : FALSE; }

int ImageList_Add(HIMAGELIST list, HBITMAP bitmap, HBITMAP) {
    const auto to = ImageLists().Find(list);
    const auto from = Bitmaps().Find(bitmap);
    if (!to || !from) return -1;
    const auto first = static_cast<int>(to->images.size());
    for (int left = 0; left + to->width <= from->width; left += to->width) {
        to->images.push_back(Cut(*from, left, to->width, to->height));
    }
    return first;
}

int ImageList_GetImageCount(HIMAGELIST list) {
    const auto found = ImageLists().Find(list);
    return found ? static_cast<int>(found->images.size()) : 0;
}

BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height) {
    const auto found = ImageLists().Find(list);
    if (!found) return FALSE;
    *width = found->width;
    *height = found->height;
    return TRUE;
}

namespace win32 {

std::span<const DWORD> ImagePixels(HIMAGELIST list, int index) {
    const auto found = ImageLists().Find(list);
    if (!found || index < 0 || static_cast<std::size_t>(index) >= found->images.size()) return {};
    return found->images[static_cast<std::size_t>(index)];
}

}  // namespace win32
