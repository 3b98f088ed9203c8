#ifndef QUILLBASE_CLANGUAGE_H
#define QUILLBASE_CLANGUAGE_H

#include <atomic>
#include <string_view>

#include "quillbase/CellTable.h"
#include "win32/Win32.h"

class CTableReader;

/// The language of the messages and of displayed numbers. Messages come from a table file where
/// there is one, and otherwise from the copy of the table that the module holds as its resource
/// DATA 10. A message that the file lacks in the chosen language is looked up in the built-in
/// table. The chosen language may change while other threads fetch messages.
class CLanguage {
  public:
    CLanguage();
    ~CLanguage();
    CLanguage(const CLanguage&) = delete;
    CLanguage& operator=(const CLanguage&) = delete;

    /// Takes the module that holds the built-in table, and the reader of a table file, which may be
    /// null and must outlive the use of this object.
    void Attach(HINSTANCE module, CTableReader* reader);

    /// Chooses the language by a Windows language identifier such as 1031. A column of the same
    /// primary language and sublanguage wins, else the first one of the primary language, else
    /// English. Returns 1 if the built-in table has the primary language, else 0.
    int SetLanguage(unsigned long language);

    /// Writes message `id` into a buffer of `size` bytes, cut to fit; the empty text if there is no
    /// such message. Returns the length written. `module` is not used: the table is the one
    /// attached.
    int String(HINSTANCE module, unsigned id, char* buffer, int size) const;

    /// The same with `arg` in place of the message's "%s".
    int FormatString(HINSTANCE module, int id, char* buffer, int size, const char* arg) const;

    /// Puts a number's text, written with a point, into the language's form, in place: German,
    /// Italian and Spanish have a decimal comma. Returns the text.
    char* Number(char* text) const;

    /// Puts a number's text in the language's form into the form with a point, in place. In a
    /// language with a decimal comma a text with comma and points has the points as separators of
    /// thousands, which are removed; a text with points alone is left as it is. Returns the text.
    char* EnglishNumber(char* text) const;

  private:
    std::string_view Message(unsigned id) const;
    bool HasDecimalComma() const;

    std::atomic<unsigned long> language_;
    quillbase::CellTable builtIn_;
    const CTableReader* reader_ = nullptr;
};

#endif
