#ifndef WIN32_IMAGELIST_H
#define WIN32_IMAGELIST_H

/// @file
/// Bitmaps from resources, and lists of equal images that are cut out of them.

#include <span>

#include "win32/Export.h"
#include "win32/Types.h"

/// Arguments of LoadImageA: the one type of image, and how it is loaded.
/// @{
inline constexpr UINT IMAGE_BITMAP = 0;
inline constexpr UINT LR_DEFAULTCOLOR = 0;
inline constexpr UINT LR_LOADTRANSPARENT = 0x0020;
inline constexpr UINT LR_CREATEDIBSECTION = 0x2000;
/// @}

/// Kinds of image lists. They make no difference here: every list holds 32 bits a pixel.
/// @{
inline constexpr UINT ILC_COLOR = 0x00;
inline constexpr UINT ILC_MASK = 0x01;
inline constexpr UINT ILC_COLOR16 = 0x10;
inline constexpr UINT ILC_COLOR32 = 0x20;
/// @}

/// Loads a bitmap resource: an uncompressed one with 1, 4, 8, 24 or 32 bits a pixel, in its own
/// size. With LR_LOADTRANSPARENT the colour of its first pixel becomes that of a window's ground,
/// white. Null if the module has no such bitmap (error 1814, or 1813 if it has none at all) or it
/// is damaged (error 1812).
HYDROFACTS_API HANDLE LoadImageA(HINSTANCE module, LPCSTR name, UINT type, int width, int height,
                                 UINT flags);
/// Releases a bitmap of LoadImageA; the lists that were cut out of it stay. FALSE if it is none.
HYDROFACTS_API BOOL DeleteObject(HGDIOBJ object);

/// Makes an empty list of images of one size in pixels; null if that is not above zero. The other
/// arguments are not used. ImageList_Destroy releases it.
HYDROFACTS_API HIMAGELIST ImageList_Create(int width, int height, UINT flags, int capacity,
                                           int growth);
/// Releases a list, which no tree shows any more; FALSE if it is none.
HYDROFACTS_API BOOL ImageList_Destroy(HIMAGELIST list);
/// Cuts a bitmap into as many whole images as stand side by side in it, and adds them. Gives the
/// index of the first one, -1 on failure. `mask` is not used.
HYDROFACTS_API int ImageList_Add(HIMAGELIST list, HBITMAP bitmap, HBITMAP mask);
/// How many images a list has; 0 if it is none.
HYDROFACTS_API int ImageList_GetImageCount(HIMAGELIST list);
/// The size of a list's images in pixels; FALSE, with nothing written, if it is none.
HYDROFACTS_API BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height);

namespace win32 {

/// The pixels of one image, row by row from the top, each 0x00RRGGBB; empty if there is no such
/// image. They last as long as the list.
HYDROFACTS_API std::span<const DWORD> ImagePixels(HIMAGELIST list, int index);

}  // namespace win32

#endif
