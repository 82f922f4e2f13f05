#pragma once

#include <dlfcn.h>

#include <string>

#include "RunTimeError.h"

namespace folionet {

// A shared library that is loaded when it is first needed and stays loaded. `purpose` is what it is needed for, as a
// message has it: "zip archives".
class LateLibrary {
 public:
  LateLibrary(const char* name, const char* purpose) : m_name(name), m_library(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {
    if (m_library == nullptr) {
      throw RunTimeError(kFileNotFound, name,
                         std::string("It is needed to read ") + purpose + ". Install the package that has it.");
    }
  }

  // Sets `function` to the library's routine of that name.
  template <typename Function>
  void Find(Function*& function, const char* name) const {
    void* const found = dlsym(m_library, name);
    if (found == nullptr) throw RunTimeError(kFileNotFound, m_name, std::string("It has no routine ") + name + ".");
    function = reinterpret_cast<Function*>(found);
  }

 private:
  const char* m_name;
  void* m_library;
};

}  // namespace folionet
