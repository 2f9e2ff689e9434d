#pragma once

#include "datastore/environment.h"

namespace torvane {

class FileSystem;

// Backup and restore: copies of the database file, whole or not at all. Any failure, a cancelled dialog among them,
// ends the operation silently; only its questions and results are said in boxes.
void takeBackup(const Environment& environment, FileSystem& files);
void restoreBackup(const Environment& environment, FileSystem& files);

}  // namespace torvane
