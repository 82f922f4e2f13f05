#pragma once

#include <string>

#include "TemporaryFolder.h"
#include "modGlob.h"

namespace folionet::test {

// A faultless library of 66 books with one chapter of two verses each, in library/ of a folder.
class Library {
 public:
  Library() {
    std::string titles;
    std::string verses;
    std::string index;
    for (int book = 1; book <= kBooks; ++book) {
      const std::string number = std::to_string(book);
      titles += number + "\tB" + number + "\tBook " + number + "\r\n";
      for (const char* verse : {"1", "2"}) verses += "0\t" + number + "\t1\t" + verse + "\tText\r\n";
      index += "0,0," + number + ",1,2,0,\"\"\r\n";
    }
    home.Write("library/Sysdefs/BOOKS.TXT", titles);
    home.Write("library/Sysdefs/Translations.txt", "1,0,\"A Bible\",\"ONE\"\r\n");
    home.Write("library/Index/ONE.TXT.INDEX", index);
    home.Write("library/Modules/Bible/ONE.TXT", verses);
  }

  // Replaces one piece of a file of the library.
  void Edit(const std::string& name, const std::string& piece, const std::string& by) const {
    std::string bytes = home.Read("library/" + name);
    const std::size_t at = bytes.find(piece);
    ASSERT_NE(at, std::string::npos) << name << " does not hold " << piece;
    home.Write("library/" + name, bytes.replace(at, piece.size(), by));
  }

  std::string Path(const std::string& name = {}) const { return home.Path() + "library/" + name; }

  TemporaryFolder home;
};

}  // namespace folionet::test
