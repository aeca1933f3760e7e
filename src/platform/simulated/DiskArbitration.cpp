// The simulated Disk Arbitration.
// SPDX-License-Identifier: MIT
#include "platform/simulated/DiskArbitration.h"

#include <algorithm>
#include <utility>

namespace brisel::platform::simulated {

DiskArbitration::DiskArbitration(Transcript& transcript, Faults& faults, MainLoop& mainLoop,
                                 FileSystem& fileSystem)
    : transcript_(transcript), faults_(faults), mainLoop_(mainLoop), fileSystem_(fileSystem) {}

void DiskArbitration::createSession() {
    dead_ = faults_.strikes("createSession");
}

Subscription DiskArbitration::registerDiskAppearedCallback(DiskCallback callback) {
    if (dead_) return {};
    auto subscription = appeared_.subscribe(std::move(callback));
    std::vector<std::pair<std::uint64_t, std::string>> present;
    for (const auto& [device, entry] : disks_) {
        if (entry.attached) present.emplace_back(entry.appeared, device);
    }
    std::sort(present.begin(), present.end());
    for (const auto& [order, device] : present)
        report(device);
    return subscription;
}

Subscription DiskArbitration::registerDiskDisappearedCallback(DiskCallback callback) {
    if (dead_) return {};
    return disappeared_.subscribe(std::move(callback));
}

void DiskArbitration::scheduleWithRunLoop() {}

std::optional<Disk> DiskArbitration::diskFromBSDName(const std::optional<std::string>& name) {
    if (faults_.strikes("diskFromBSDName") || dead_ || !name) return std::nullopt;
    return Disk{.bsdName = *name};
}

std::optional<Disk> DiskArbitration::diskFromVolumePath(const std::optional<FileURL>& path) {
    if (faults_.strikes("diskFromVolumePath") || dead_ || !path) return std::nullopt;
    const auto found = diskMountedAt(*path);
    if (found == disks_.end()) return std::nullopt;
    return Disk{.bsdName = found->first};
}

DiskDescription DiskArbitration::copyDescription(const Disk& disk) {
    const auto* const entry = find(disk.bsdName);
    return entry != nullptr ? entry->properties.description : DiskDescription();
}

void DiskArbitration::unmount(const Disk& disk, Completion completion) {
    transcript_.record("unmount: %@", disk.bsdName);
    auto* const entry = find(disk.bsdName);
    const auto refusal = judgeUnmount(entry);
    if (!refusal) {
        auto& properties = entry->properties;
        fileSystem_.emptyFolder(properties.description.volumePath->path());
        properties.description.volumePath.reset();
        properties.writable = false;
    }
    complete(disk, refusal, std::move(completion));
}

void DiskArbitration::mountWithArguments(const Disk& disk,
                                         const std::vector<std::string>& arguments,
                                         Completion completion) {
    std::string event = "mount: " + disk.bsdName;
    for (const auto& argument : arguments)
        event += ' ' + argument;
    transcript_.write(event);
    auto* const entry = find(disk.bsdName);
    const auto refusal = judgeMount(entry);
    if (!refusal) mount(*entry, "/Volumes/" + orNullText(entry->properties.description.volumeName));
    complete(disk, refusal, std::move(completion));
}

std::optional<std::uint32_t> DiskArbitration::judgeUnmount(Entry* entry) {
    if (faults_.strikes("unmount")) return DAReturn::Error;
    if (entry != nullptr && entry->unmountRefusal) return std::exchange(entry->unmountRefusal, {});
    if (entry == nullptr || !entry->attached) return DAReturn::NotFound;
    const auto& description = entry->properties.description;
    if (!description.volumeMountable.value_or(false)) return DAReturn::Unsupported;
    if (!description.volumePath) return DAReturn::NotMounted;
    return std::nullopt;
}

std::optional<std::uint32_t> DiskArbitration::judgeMount(Entry* entry) {
    if (faults_.strikes("mount")) return DAReturn::Error;
    if (entry != nullptr && entry->mountRefusal) return std::exchange(entry->mountRefusal, {});
    if (entry == nullptr || !entry->attached) return DAReturn::NotFound;
    if (entry->properties.description.volumePath) return DAReturn::Busy;
    return std::nullopt;
}

void DiskArbitration::complete(const Disk& disk, std::optional<std::uint32_t> refusal,
                               Completion completion) {
    // Passes only the name: the completion sees the disk's state at delivery.
    auto work = [name = disk.bsdName, refusal, completion = std::move(completion)] {
        const auto dissenter =
            refusal ? std::optional<Dissenter>({.status = *refusal}) : std::nullopt;
        completion({.bsdName = name}, dissenter);
    };
    if (holding_) {
        held_.emplace_back(std::move(work));
    } else {
        mainLoop_.post(std::move(work));
    }
}

bool DiskArbitration::isAttached(const std::string& device) const {
    const auto found = disks_.find(device);
    return found != disks_.end() && found->second.attached;
}

bool DiskArbitration::wasEverAttached(const std::string& device) const {
    return disks_.contains(device);
}

void DiskArbitration::attach(const std::string& device, Properties properties) {
    properties.description.mediaBSDName = device;
    auto& entry = disks_[device];
    entry.properties = std::move(properties);
    entry.attached = true;
    entry.appeared = ++order_;
    entry.mounted = ++order_;
    report(device);
}

void DiskArbitration::change(const std::string& device, Properties properties) {
    auto& entry = disks_.at(device);
    const auto& path = properties.description.volumePath;
    if (path != entry.properties.description.volumePath) entry.mounted = ++order_;
    entry.properties = std::move(properties);
}

const DiskArbitration::Properties& DiskArbitration::properties(const std::string& device) const {
    return disks_.at(device).properties;
}

void DiskArbitration::report(const std::string& device) {
    postReport(appeared_, device);
}

void DiskArbitration::detach(const std::string& device) {
    auto& entry = disks_.at(device);
    entry.attached = false;
    postReport(disappeared_, device);
    const auto& path = entry.properties.description.volumePath;
    if (path) fileSystem_.emptyFolder(path->path());
}

void DiskArbitration::postReport(const Reports& signal, const std::string& device) {
    const auto& description = disks_.at(device).properties.description;
    if (signal.empty() || !description.volumeMountable.value_or(false)) return;
    mainLoop_.post([&signal, device, description] { signal({.bsdName = device}, description); });
}

void DiskArbitration::refuseUnmount(const std::string& device, std::uint32_t status) {
    disks_.at(device).unmountRefusal = status;
}

void DiskArbitration::refuseMount(const std::string& device, std::uint32_t status) {
    disks_.at(device).mountRefusal = status;
}

void DiskArbitration::release() {
    holding_ = false;
    for (auto& work : std::exchange(held_, {}))
        mainLoop_.post(std::move(work));
}

void DiskArbitration::mountBehind(const std::string& device, const std::string& path) {
    if (!isAttached(device)) return;
    fileSystem_.makeFolder(path);
    mount(disks_.at(device), path);
}

bool DiskArbitration::isWritable(const std::string& path) const {
    const auto found = diskMountedAt(FileURL(path));
    return found != disks_.end() && found->second.properties.writable;
}

DiskArbitration::Disks::const_iterator DiskArbitration::diskMountedAt(const FileURL& path) const {
    auto latest = disks_.end();
    for (auto disk = disks_.begin(); disk != disks_.end(); ++disk) {
        const auto& entry = disk->second;
        if (!entry.attached || entry.properties.description.volumePath != path) continue;
        if (latest == disks_.end() || entry.mounted > latest->second.mounted) latest = disk;
    }
    return latest;
}

void DiskArbitration::mount(Entry& entry, const std::string& path) {
    entry.properties.description.volumePath = FileURL(path);
    entry.properties.writable = true;
    entry.mounted = ++order_;
}

DiskArbitration::Entry* DiskArbitration::find(const std::string& device) {
    const auto found = disks_.find(device);
    return found == disks_.end() ? nullptr : &found->second;
}

}  // namespace brisel::platform::simulated
