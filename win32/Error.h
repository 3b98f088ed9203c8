#ifndef WIN32_ERROR_H
#define WIN32_ERROR_H

/// @file
/// The reason of the last failure on this thread.

#include "win32/Export.h"
#include "win32/Types.h"

/// The reasons that the functions of this folder give.
/// @{
inline constexpr DWORD ERROR_SUCCESS = 0;
inline constexpr DWORD ERROR_INVALID_PARAMETER = 87;
inline constexpr DWORD ERROR_INVALID_WINDOW_HANDLE = 1400;
inline constexpr DWORD ERROR_CANNOT_FIND_WND_CLASS = 1407;
inline constexpr DWORD ERROR_CONTROL_ID_NOT_FOUND = 1421;
inline constexpr DWORD ERROR_RESOURCE_DATA_NOT_FOUND = 1812;
inline constexpr DWORD ERROR_RESOURCE_TYPE_NOT_FOUND = 1813;
inline constexpr DWORD ERROR_RESOURCE_NAME_NOT_FOUND = 1814;
/// @}

/// The reason of the last failure on this thread; a success leaves it as it was.
HYDROFACTS_API DWORD GetLastError();
/// Sets the reason, for this thread only.
HYDROFACTS_API void SetLastError(DWORD error);

#endif
