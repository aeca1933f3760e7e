// The file manager of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <utility>

#include "platform/FileManager.h"
#include "platform/simulated/DiskArbitration.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/FileSystem.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class FileManager final : public platform::FileManager {
  public:
    FileManager(Transcript& transcript, Faults& faults, FileSystem& fileSystem,
                const DiskArbitration& disks);

    [[nodiscard]] std::string homeDirectory() const override { return home_; }
    [[nodiscard]] std::string volumesDirectory() const override { return "/Volumes"; }
    [[nodiscard]] std::string currentDirectoryPath() const override { return current_; }
    [[nodiscard]] bool isWritableFileAtPath(const std::optional<std::string>& path) override;
    [[nodiscard]] FolderListing contentsOfDirectory(const FileURL& folder) override;
    [[nodiscard]] std::optional<Error> createDirectory(const std::string& path) override;
    [[nodiscard]] std::optional<Error> removeItem(const std::string& path) override;

    // Test controls.
    enum class Call { Create, List, Delete };
    void setHomeDirectory(std::string path) { home_ = std::move(path); }
    void setCurrentDirectory(std::string path) { current_ = std::move(path); }
    /// Makes the next such call fail; errors for one call are used in order.
    void fail(Call call, Error error);

  private:
    [[nodiscard]] std::optional<Error> nextFailure(Call call);

    Transcript& transcript_;
    Faults& faults_;
    FileSystem& fileSystem_;
    const DiskArbitration& disks_;
    std::string home_ = "/Users/user";
    std::string current_ = "/";
    std::map<Call, std::deque<Error>> failures_;
};

}  // namespace brisel::platform::simulated
