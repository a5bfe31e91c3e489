// SPDX-License-Identifier: MIT
#include "zbbrowse/OutputFile.h"

#include "zbbrowse/Complaint.h"
#include "zbbrowse/Interrupt.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace zbbrowse {

namespace {

constexpr unsigned kPermissions = 0777;

[[noreturn]] void Fail(std::string const& name, int error = errno) {
    throw Complaint(name + ": " + std::generic_category().message(error));
}

bool IsSameFile(struct stat const& a, struct stat const& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

//! The permissions of a new file.
unsigned UsualMode() {
    auto const mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

//! Where a symbolic link leads, also if nothing is there yet.
std::string FollowLinks(std::string const& path) {
    std::error_code error;
    auto const target = std::filesystem::weakly_canonical(path, error);
    return error ? path : target.string();
}

} // namespace

OutputFile::OutputFile(std::string const& path, std::string const& source)
    : name_(path.empty() ? "standard output" : path) {
    if (path.empty())
        return;
    struct stat there {};
    struct stat read {};
    bool const exists = ::stat(path.c_str(), &there) == 0;
    if (exists && ::stat(source.c_str(), &read) == 0 && IsSameFile(there, read))
        throw Complaint(path + ": is the file that is shown, and stays as it is");
    if (exists && S_ISDIR(there.st_mode))
        Fail(name_, EISDIR);
    if (exists && !S_ISREG(there.st_mode))
        OpenInPlace(path);
    else
        OpenBeside(FollowLinks(path), exists ? there.st_mode & kPermissions : UsualMode());
}

OutputFile::~OutputFile() {
    Discard();
}

void OutputFile::OpenInPlace(std::string const& path) {
    descriptor_ = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor_ < 0)
        Fail(name_);
}

void OutputFile::OpenBeside(std::string const& target, unsigned mode) {
    target_ = target;
    std::string pattern = target + ".XXXXXX";
    descriptor_ = ::mkostemp(pattern.data(), O_CLOEXEC);
    if (descriptor_ < 0)
        Fail(name_);
    temporary_ = pattern;
    if (!Interrupt::SetTemporaryFile(temporary_.c_str())) {
        Discard();
        throw Complaint(name_ + ": name too long");
    }
    ::fchmod(descriptor_, mode);
}

void OutputFile::Commit() {
    if (descriptor_ == STDOUT_FILENO)
        return;
    // Some file systems tell only now that there is no room.
    auto const descriptor = descriptor_;
    descriptor_ = STDOUT_FILENO;
    if (::close(descriptor) != 0)
        Fail(name_);
    if (temporary_.empty())
        return;
    if (std::rename(temporary_.c_str(), target_.c_str()) != 0)
        Fail(name_);
    temporary_.clear();
    Interrupt::SetTemporaryFile("");
}

void OutputFile::Discard() {
    if (descriptor_ != STDOUT_FILENO)
        ::close(descriptor_);
    if (temporary_.empty())
        return;
    ::unlink(temporary_.c_str());
    Interrupt::SetTemporaryFile("");
}

} // namespace zbbrowse
