#pragma once

// Where the files that tests and benchmarks read lie. No other source knows.

#include <string>
#include <vector>

namespace testdata {

// The whole path of a file of the project, given from its root.
std::string InProject(const std::string& path);
std::string BytesOf(const std::string& path);
// The files with this extension below a folder, sorted.
std::vector<std::string> FilesIn(const std::string& folder, const std::string& extension);

// The forms in tests/data/forms: each file, and the whole path of one.
const std::vector<std::string>& Forms();
std::string Form(const std::string& name);
// The TS file of the forms in a language: de (all texts), fr (of an older revision of the form of
// beds), ar (with relative lines).
std::string TsFile(const std::string& language);

// The forms of other programs in the folders that the setting WEXA_FORMS names; else none, which
// the sentence explains.
const std::vector<std::string>& GivenForms();
extern const char* const kNoGivenForms;

}  // namespace testdata
