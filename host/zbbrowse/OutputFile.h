// SPDX-License-Identifier: MIT
//! \file
//! Where the output goes.
#pragma once

#include <unistd.h>

#include <string>

namespace zbbrowse {

//! Standard output, or a file that is there whole or not at all: it is written under another name
//! beside its place and takes that place when all is well. What was there before stays until then,
//! and stays for good if something goes wrong. What is no plain file, such as a pipe, is written in
//! place.
class OutputFile {
public:
    //! An empty `path` is standard output. `source` is the file that is read: writing over it is
    //! refused. Throws `Complaint`.
    OutputFile(std::string const& path, std::string const& source);
    ~OutputFile();
    OutputFile(OutputFile const&) = delete;
    OutputFile& operator=(OutputFile const&) = delete;

    int GetDescriptor() const { return descriptor_; }

    //! How a message names it.
    std::string const& GetName() const { return name_; }

    //! Says that all has been written. Throws `Complaint` if it did not reach its place.
    void Commit();

private:
    void OpenInPlace(std::string const& path);
    void OpenBeside(std::string const& target, unsigned mode);
    void Discard();

    std::string name_;
    std::string target_;    //!< What the file replaces, symbolic links followed.
    std::string temporary_; //!< Empty: written in place.
    int descriptor_ = STDOUT_FILENO;
};

} // namespace zbbrowse
