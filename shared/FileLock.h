#pragma once

#include <chrono>
#include <string>

namespace folionet {

// Nothing that another program holds is waited for any longer.
inline constexpr std::chrono::milliseconds kLongestWait(2000);

// So long is waited at least: a program that looks whether a lock is held has it for a moment.
inline constexpr std::chrono::milliseconds kShortestWait(100);

// Locks an open file or folder against the other programs that lock it, and waits for them up to `patience`. False when
// one of them holds it still. A file system that knows no locks, as some of a network do, is let pass.
bool LockFile(int descriptor, std::chrono::milliseconds patience = kShortestWait);

// Whether LockFile would be refused; the file or folder is then not locked.
bool IsLockHeld(int descriptor, std::chrono::milliseconds patience = kShortestWait);

// The program that holds the lock of an open file or folder: "folionet-cli (process 4711)"; "?" where the system does
// not tell.
std::string LockHolderName(int descriptor);

// Who holds the lock of an open file or folder, as a sentence begins: "Another program, folionet-cli (process 4711),".
std::string LockHolder(int descriptor);

}  // namespace folionet
