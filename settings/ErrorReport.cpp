#include "ErrorReport.h"

#include "BuildInfo.h"
#include "RunTimeError.h"

namespace folionet {

std::string BuildErrorReport(int errorNumber, std::string_view moduleLabel, std::string_view extraInfo,
                             std::string_view appPath) {
  const std::string newLine = "\r\n";
  std::string text = "An Error has occured." + newLine;
  text += "Title        : " + std::string(kApplicationTitle) + newLine;
  if (appPath.size() > 1 && appPath.ends_with('/')) appPath.remove_suffix(1);
  text += "App Path     : " + std::string(appPath) + newLine;
  text += "Software Ver : " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
          std::to_string(kVersionRevision) + "." + newLine;
  text += "Module       : " + std::string(moduleLabel) + "." + newLine;
  text += "Error Number : " + std::to_string(errorNumber) + newLine;
  text += "Description  : " + std::string(StandardMessage(errorNumber)) + "." + newLine;
  text += "Extra Info   : " + newLine;
  text += std::string(extraInfo) + newLine + newLine;
  text += "If the error persists, please report it at: " + std::string(kSupportAddress) + newLine;
  text += "PLEASE SUPPLY A FULL DESCRIPTION OF THE ERROR," + newLine;
  text += "EXACTLY as you see it in this error message.";
  return text;
}

}  // namespace folionet
