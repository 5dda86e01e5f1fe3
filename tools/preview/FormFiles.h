#pragma once

#include <string>
#include <vector>

namespace preview {

// The forms that the arguments stand for: files as given, and for a folder the .ui files below it,
// sorted. Throws std::runtime_error for a folder without forms.
std::vector<std::string> FindForms(const std::vector<std::string>& arguments);

// The file's path as the library takes it. Throws std::runtime_error with the system's reason for a
// file that cannot be read.
std::wstring LibraryPath(const std::string& file);

// One line for the exception being handled: the file, the line where one is known, the message.
std::string DescribeError(const std::string& file);

}  // namespace preview
