#ifndef WIN32_CODEPAGE_H
#define WIN32_CODEPAGE_H

// Windows-1252, the code page of every text in this project, and UTF-16, that of dialog templates.

namespace win32 {

/// The UTF-16 unit of a Windows-1252 byte; the five bytes without a character stay what they are.
char16_t ToUtf16(char c);

/// The Windows-1252 byte of a UTF-16 unit, '?' if there is none.
char FromUtf16(char16_t unit);

}  // namespace win32

#endif
