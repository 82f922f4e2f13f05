#pragma once

namespace folionet {

// From now on the first SIGINT, SIGTERM or SIGHUP does not end the program but is noted; a second one ends it. One that
// is ignored already, as under nohup, stays so.
void NoteStopSignals();

// The signal that was noted; 0 for none.
int StopSignal();

}  // namespace folionet
