#ifndef QUILLBASE_FILETEXT_H
#define QUILLBASE_FILETEXT_H

#include <cstddef>
#include <memory>
#include <string_view>

namespace quillbase {

/// The whole content of a file, read once at construction; the file is closed again by then.
class FileText {
  public:
    explicit FileText(const char* path);

    /// The longest file that is read, 1 GiB: a longer one is no text that anybody wrote, and there
    /// may be no memory for it.
    static constexpr std::size_t kLongest = std::size_t{1} << 30U;

    /// False if the file is absent, unreadable, longer than kLongest or not a plain file (a folder,
    /// a device, a pipe).
    bool Valid() const { return valid_; }

    /// The content as it stands in the file; empty if there is none.
    std::string_view Text() const { return {text_.get(), size_}; }

  private:
    std::unique_ptr<char[]> text_;
    std::size_t size_ = 0;
    bool valid_ = false;
};

}  // namespace quillbase

#endif
