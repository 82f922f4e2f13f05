#pragma once

#include <QString>
#include <vector>

namespace folionet {

// A place where files are kept, as a person knows it.
struct Volume {
  QString name;  // "Home"
  QString path;  // without a separator at its end, but for "/"
};

// The person's home, the root of the file system, and what is mounted where removable media and other disks go. Asks
// no file system whether it answers: one that is gone must not hold the program up.
std::vector<Volume> MountedVolumes();

// The same by a table of mounts, in the form of /etc/fstab.
std::vector<Volume> VolumesOf(const char* table);

}  // namespace folionet
