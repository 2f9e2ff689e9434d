#pragma once

#include <string>

namespace torvane {

class FileSystem;

// The program's folder: the database and the files that go with it. It is the one in which the program lies,
// `installed` (portable), unless a file "per-user" stands there: then the program serves all users, and each has a
// folder of his own, `ofUser`, which is made whole or not at all at his first start, with a copy of the delivered
// database. The other files are links there, so that an upgrade reaches them, and are looked after at each start; what
// the user has put in their place stays. A step that fails is passed over: the program then says what it can't open.
std::string programFolder(FileSystem& files, const std::string& installed, const std::string& ofUser);

}  // namespace torvane
