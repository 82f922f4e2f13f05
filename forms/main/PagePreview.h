#pragma once

#include <memory>
#include <string>

#include "CompileRequest.h"
#include "UserInterface.h"
#include "modGlob.h"

class QTemporaryDir;

namespace folionet {

// Makes chapter 1 of the starting book as a compile would, in a temporary folder that goes with the program.
class PagePreview {
 public:
  PagePreview();
  ~PagePreview();

  // Makes the page and shows it in the person's browser; one that is made later takes its place. Nothing in the output
  // folder changes. What refuses a compile is told, but for a missing folder and address.
  void Show(CompileRequest request, const ModGlob& glob, UserInterface& ui);

 private:
  // Made anew when it was removed. Throws RunTimeError where none can be made.
  std::string Folder();

  std::unique_ptr<QTemporaryDir> m_folder;
};

}  // namespace folionet
