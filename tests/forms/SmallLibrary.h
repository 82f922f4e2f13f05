#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace folionet {

// A library in Versalia's layout, small enough to compile in no time: two translations of two books of 66.
//
//   Small Bible  SMALL  Book1 1 (3 verses), 2 (2 verses); Book2 1 (1 verse)
//   Other Bible  OTHER  Book1 1 (1 verse)
//
// The titles are Book1..Book66 in BOOKS.TXT and BOOKS_ENGLISH.TXT, Boek1..Boek66 in BOOKS_DUTCH.TXT.
class SmallLibrary {
 public:
  explicit SmallLibrary(std::filesystem::path folder) : m_folder(std::move(folder)) {
    Write("Sysdefs/Translations.txt", "1,0,\"Small Bible\",\"SMALL\"\r\n2,0,\"Other Bible\",\"OTHER\"\r\n");
    Write("Sysdefs/BOOKS.TXT", Titles("Book"));
    Write("Sysdefs/BOOKS_ENGLISH.TXT", Titles("Book"));
    Write("Sysdefs/BOOKS_DUTCH.TXT", Titles("Boek"));
    Write("Index/SMALL.TXT.INDEX", "1,0,1,1,3,50,\"B1\"\r\n2,50,1,2,2,40,\"B1\"\r\n3,90,2,1,1,20,\"B2\"\r\n");
    Write("Index/OTHER.TXT.INDEX", "1,0,1,1,1,20,\"B1\"\r\n");
    Write("Modules/Bible/SMALL.TXT",
          "1\t1\t1\t1\tIn the beginning\r\n2\t1\t1\t2\tAnd the earth\r\n3\t1\t1\t3\tLet there be light\r\n"
          "4\t1\t2\t1\tThus the heavens\r\n5\t1\t2\t2\tAnd on the seventh day\r\n6\t2\t1\t1\tThese are the names\r\n");
    Write("Modules/Bible/OTHER.TXT", "1\t1\t1\t1\tAt first\r\n");
  }

  // Notes the library's folders in Versalia's settings, in `settingsFolder`.
  void Register(const std::filesystem::path& settingsFolder) const {
    std::filesystem::create_directories(settingsFolder);
    std::ofstream(settingsFolder / "Versalia.ini", std::ios::binary)
        << "[Module_Path]\nVersaliaPath=" << Path() << "\nModulePath=" << Path() << "Modules/\n";
  }

  // Replaces a file of the library; `name` is relative to its folder.
  void Write(const std::string& name, const std::string& bytes) const {
    std::filesystem::create_directories((m_folder / name).parent_path());
    std::ofstream(m_folder / name, std::ios::binary) << bytes;
  }

  void Remove(const std::string& name) const { std::filesystem::remove_all(m_folder / name); }

  std::string Path() const { return m_folder.string() + "/"; }

 private:
  static std::string Titles(const std::string& word) {
    std::string text;
    for (int book = 1; book <= 66; ++book) {
      const std::string number = std::to_string(book);
      text += number + "\tB" + number + "\t" + word + number + "\r\n";
    }
    return text;
  }

  std::filesystem::path m_folder;
};

}  // namespace folionet
