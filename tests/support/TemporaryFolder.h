#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace folionet::test {

// A folder of its own for one test, gone afterwards.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "folionet-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::filesystem::filesystem_error("mkdtemp", {});
    m_path = pattern + "/";
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  // Ends in a slash.
  const std::string& Path() const { return m_path; }

  // Writes a file, with the folders above it, and gives its path.
  std::string Write(const std::string& name, std::string_view bytes) const {
    const std::filesystem::path path = m_path + name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path.string();
  }

  std::string Read(const std::string& name) const {
    const std::ifstream file(m_path + name, std::ios::binary);
    EXPECT_TRUE(file.good()) << name << " is missing";
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
  }

  bool Has(const std::string& name) const { return std::filesystem::exists(m_path + name); }

 private:
  std::string m_path;
};

}  // namespace folionet::test
