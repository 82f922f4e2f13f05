#pragma once

#include <chrono>
#include <string>

namespace folionet {

// Nothing that another program holds is waited for any longer.
inline constexpr std::chrono::milliseconds kLongestWait(2000);

// Locks an open file or folder against the other programs that lock it, and waits for them up to `patience`. False when
// one of them holds it still. A file system that knows no locks, as some of a network do, is let pass.
bool LockFile(int descriptor, std::chrono::milliseconds patience);

// Whether another program is known to hold the lock of an open file or folder; nothing is locked by that.
bool IsLockHeld(int descriptor);

// Who holds the lock of an open file or folder, as a sentence begins: "Another program, folionet-cli (process 4711),",
// or "Another program" where the system does not tell.
std::string LockHolder(int descriptor);

}  // namespace folionet
