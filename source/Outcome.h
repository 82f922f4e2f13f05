#pragma once

namespace folionet {

// How a routine that can end the program went on.
enum class Outcome {
  kDone,
  kReported,    // it failed and said so; the program goes on
  kEndProgram,  // it failed and said so; the program must end at once, saving nothing
};

}  // namespace folionet
