#pragma once

#include "datastore/data_access.h"

namespace torvane {

class FileSystem;

// Backup and restore: copies of the database file, whole or not at all. Any failure, a cancelled dialog among them,
// ends the operation silently; only its questions and results are said in boxes.
void takeBackup(const DataAccess& access, FileSystem& files);
void restoreBackup(const DataAccess& access, FileSystem& files);

}  // namespace torvane
