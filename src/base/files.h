#pragma once

#include <string>

// Whether `name`, looked up from the current directory, is a regular file that can be asked for.
// A directory or a dangling link is not one.
bool FileExists(const std::string& name);
