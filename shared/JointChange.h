#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Replacement.h"

namespace folionet {

// A change of several files that is one to a person: all of them get their new content, or none does, whatever fails
// and whenever the program is killed.
//
//   JointChange change(settingsFolder + ".Folionet.unfinished");
//   change.Edit(header, longest, recode);
//   change.Edit(settingsFile, longest, setCharset);
//   change.Commit();
//
// All new contents are first written beside the files. Then a note with the old and the new contents gets its name, and
// with that the change is made: the files are replaced one after the other, and the note is removed. A start that finds
// a note completes the change with FinishJointChange.
class JointChange {
 public:
  // `note` is the path of the note, in a folder that is there.
  explicit JointChange(std::string note);

  // Prepares the new content of a file, which is made when missing. Files are replaced in this order. Throws
  // RunTimeError, and the change then cannot be made.
  void Replace(const std::string& path, std::string_view bytes);

  // As Replace, with a content that `give` gives piece by piece, of any length. It is not held in memory.
  using Pieces = std::function<void(std::string_view piece)>;
  void Write(const std::string& path, const std::function<void(const Pieces& take)>& give);

  // As Replace, with what `edit` makes of the old content, which is empty when there is no such file. A file over
  // `longest` bytes is refused.
  void Edit(const std::string& path, std::size_t longest, const std::function<std::string(std::string content)>& edit);

  // Makes the change. Throws RunTimeError, and the old contents stand; where the system lets not even them be put back,
  // the note stays, and the next start completes the change.
  void Commit();

 private:
  struct Part {
    std::unique_ptr<Replacement> file;
    std::string oldBytes;
    std::string newBytes;  // or, of one that was given in pieces, their sum
    bool isInPieces = false;
    bool isNew = false;
  };

  // A part with the old content of its file.
  static Part Begin(const std::string& path, std::size_t longest);
  void PutBack(std::size_t count);

  std::string m_note;
  std::vector<Part> m_parts;
};

// Makes in the present content of the file `path`, which has been saved since, the change that leads from one content
// to another; nothing for a file of which the change cannot be told apart from what was saved.
using CarryChange = std::function<std::optional<std::string>(const std::string& path, const std::string& from,
                                                             const std::string& to, const std::string& present)>;

// Completes the change that `note` tells of, if there is one. A file that has neither its old nor its new content has
// been saved since: it gets what `carry` makes of it or, when that makes nothing, stays, and the others get their old
// contents back. Throws RunTimeError when a file cannot be replaced; the note then stays.
void FinishJointChange(const std::string& note, const CarryChange& carry = {});

}  // namespace folionet
