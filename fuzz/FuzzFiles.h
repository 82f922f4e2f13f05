#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace folionet::fuzz {

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// A folder in memory for the whole run of a fuzz target, gone afterwards.
class Folder {
 public:
  Folder() {
    std::string pattern = "/dev/shm/folionet-fuzz-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    m_path = pattern + "/";
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  const std::string& Path() const { return m_path; }

  std::string Write(const std::string& name, std::string_view bytes) const {
    const std::string path = m_path + name;
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0 || write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
    close(file);
    return path;
  }

 private:
  std::string m_path;
};

// Splits an input at each byte 0xFE, into at most `most` parts, the last of which is the rest.
inline std::vector<std::string> Parts(std::string_view input, std::size_t most) {
  std::vector<std::string> parts;
  while (parts.size() + 1 < most) {
    const std::size_t end = input.find('\xFE');
    parts.emplace_back(input.substr(0, end));
    if (end == std::string_view::npos) {
      input = {};
      break;
    }
    input.remove_prefix(end + 1);
  }
  parts.emplace_back(input);
  parts.resize(most);
  return parts;
}

}  // namespace folionet::fuzz
