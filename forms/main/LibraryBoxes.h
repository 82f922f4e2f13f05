#pragma once

#include <string>

#include "UserInterface.h"

class QWidget;

namespace folionet {

// The boxes that ask for the folders of Versalia's library where it is not known. Who has none imports a text instead,
// whose library then answers both boxes.
class LibraryBoxes {
 public:
  explicit LibraryBoxes(UserInterface& ui) : m_ui(ui) {}

  // The folder that was entered, or empty.
  std::string Ask(const InputBox& box, QWidget* owner);

 private:
  UserInterface& m_ui;
  std::string m_imported;  // the library, once a text was imported
};

}  // namespace folionet
