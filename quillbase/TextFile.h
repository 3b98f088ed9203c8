#ifndef QUILLBASE_TEXTFILE_H
#define QUILLBASE_TEXTFILE_H

#include <cstddef>
#include <string_view>

#include "quillbase/FileText.h"

/// A text file, handed out line by line. A line ends at CR LF or at LF alone; the line end is no
/// part of the line. The file is read whole and closed by the constructor.
///
///     TextFile file(path);
///     char line[260];
///     for (file.ReadLine(line, sizeof line); !file.eof(); file.ReadLine(line, sizeof line)) ...
class TextFile {
  public:
    /// The longest line that the plain form of ReadLine stores, with its terminator.
    static constexpr unsigned kPlainBuffer = 260;

    /// Opens a file. If there is none of that name, one whose extension differs by case alone
    /// serves.
    explicit TextFile(const char* path);
    ~TextFile();

    /// True if the file could be opened and read: a plain file, not a folder or a device.
    bool ValidFile() const { return text_.Valid(); }

    /// Stores the next line, terminated, in a buffer of `size` bytes. What doesn't fit is dropped
    /// up to the line's end. At the end of the file an empty text is stored; a last line without a
    /// line end is stored too, but eof() is true after it. A `size` of 0 stores nothing.
    void ReadLine(char* buffer, unsigned size);

    /// The same for a buffer of at least kPlainBuffer bytes.
    void ReadLine(char* buffer) { ReadLine(buffer, kPlainBuffer); }

    /// The next line without copying it, of any length and with whatever bytes it has; it stays as
    /// long as this object. Empty at the end of the file; what is said of a last line without a
    /// line end holds here too.
    std::string_view TakeLine();

    /// True once a read met the end of the file ahead of a line end. A line after whose reading
    /// this is true is to be dropped.
    bool eof() const { return eof_; }

  private:
    quillbase::FileText text_;
    std::size_t position_ = 0;
    bool eof_ = false;
};

// Tables are mostly passed over line by line: a call would cost as much as the line.
inline std::string_view TextFile::TakeLine() {
    const std::string_view rest = text_.Text().substr(position_);
    const std::size_t lineEnd = rest.find('\n');
    eof_ = lineEnd == std::string_view::npos;
    std::string_view line = rest.substr(0, lineEnd);
    position_ += eof_ ? rest.size() : lineEnd + 1;
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

#endif
