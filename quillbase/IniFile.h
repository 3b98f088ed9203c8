#ifndef QUILLBASE_INIFILE_H
#define QUILLBASE_INIFILE_H

#include <optional>
#include <string>
#include <string_view>

namespace quillbase {

/// A host's ini file, held as its text, so that what the library does not own comes back byte for
/// byte: comments, order, blank lines, line ends, lines that are no ini syntax at all. (The
/// packaged ini libraries write the file anew from what they understood of it.) Sections and keys
/// are found without regard to case; of two with one name the first counts. Blanks around a key and
/// a value don't belong to them.
class IniFile {
  public:
    /// Reads the file; a file that can't be read counts as empty.
    explicit IniFile(std::string path);

    /// The value of a key; none if section or key is absent.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;

    /// Replaces the value of the key, or adds the key at the end of the section, or both at the end
    /// of the file.
    void SetValue(std::string_view section, std::string_view key, std::string_view value);

    /// Writes the text to a file beside the old one and puts it in its place when it is safe on the
    /// disk. False if any of that fails, with the old file as it was; also when the file is there
    /// and could not be read.
    bool Save() const;

  private:
    std::string path_;
    std::string text_;
    bool readable_ = true;
};

}  // namespace quillbase

#endif
