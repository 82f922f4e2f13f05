#include "Volumes.h"

#include <mntent.h>

#include <QCoreApplication>
#include <QDir>
#include <array>
#include <cstdio>
#include <memory>

namespace folionet {
namespace {

bool IsForPeople(const QString& path) {
  constexpr std::array kPlaces{"/media/", "/run/media/", "/mnt/"};
  for (const char* place : kPlaces) {
    if (path.startsWith(QLatin1String(place))) return true;
  }
  return false;
}

}  // namespace

std::vector<Volume> MountedVolumes() { return VolumesOf("/proc/self/mounts"); }

std::vector<Volume> VolumesOf(const char* table) {
  std::vector<Volume> volumes{{QObject::tr("Home"), QDir::homePath()}, {QObject::tr("Computer"), QDir::rootPath()}};
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> mounts(setmntent(table, "r"), endmntent);
  if (!mounts) return volumes;
  std::array<char, 4096> buffer{};
  mntent entry{};
  while (getmntent_r(mounts.get(), &entry, buffer.data(), static_cast<int>(buffer.size())) != nullptr) {
    const QString path = QString::fromLocal8Bit(entry.mnt_dir);
    if (IsForPeople(path)) volumes.push_back({path.section(QLatin1Char('/'), -1), path});
  }
  return volumes;
}

}  // namespace folionet
