// Buffers and working directory for starting one tool as root.
// SPDX-License-Identifier: MIT
#include "privileged/LaunchBuffers.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>

#include "shared/IgnoreResult.h"

namespace brisel {

namespace {

struct Free {
    void operator()(char* buffer) const { std::free(buffer); }
};

// Deliberately frees no saved path before exit, so that pointers to them stay valid.
const char* saveWorkingDirectory() {
    static std::deque<std::unique_ptr<char, Free>> saved;
    return saved.emplace_back(getcwd(nullptr, 0)).get();
}

std::unique_ptr<char[]> bufferWith(const std::string& argument) {
    const char* const representation = argument.c_str();
    const std::size_t size = std::strlen(representation) + 1;
    auto buffer = std::make_unique<char[]>(size);
    std::snprintf(buffer.get(), size, "%s", representation);
    return buffer;
}

}  // namespace

RightsItemValue::RightsItemValue(const char* path)
    : length_(std::strlen(path)), memory_(std::max(length_, sizeof path)) {
    std::memcpy(memory_.data(), &path, sizeof path);
}

ArgumentVector::ArgumentVector(const std::vector<std::string>& arguments) {
    for (const auto& argument : arguments) {
        pointers_.push_back(buffers_.emplace_back(bufferWith(argument)).get());
    }
    pointers_.push_back(nullptr);
}

WorkingDirectory::WorkingDirectory(const std::string& path) : saved_(saveWorkingDirectory()) {
    shared::ignoreResult(chdir(path.c_str()));
}

WorkingDirectory::~WorkingDirectory() {
    if (saved_ != nullptr) shared::ignoreResult(chdir(saved_));
}

}  // namespace brisel
