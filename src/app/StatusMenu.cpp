// The volume items of the status menu.
// SPDX-License-Identifier: MIT
#include <array>
#include <utility>

#include "app/AppDelegate.h"
#include "app/RemountPrompt.h"
#include "platform/Bundle.h"
#include "platform/Format.h"
#include "platform/Menu.h"
#include "volumes/VolumeListHelper.h"

namespace brisel {

namespace {

using platform::MenuItem;

constexpr int MainTag = 101;
constexpr int SecondaryTag = 102;
constexpr std::array GeneratedTags{MainTag, SecondaryTag};

// A raw NSTextAlignment on purpose. AppKit assigns 1 per architecture: NSTextAlignmentRight on
// x86_64, NSTextAlignmentCenter on arm64.
constexpr int SecondaryAlignment = 1;

/// A selector and the factory of its target.
struct Action {
    std::string_view selector;
    MenuItem::Target (*on)(NTFSVolumeManager& manager);
};

// The method is a template parameter so that the closure fits std::function's inline storage.
template <auto Method>
MenuItem::Target target(NTFSVolumeManager& manager) {
    return [&manager](const MenuItem& sender) { (manager.*Method)(sender); };
}

using Manager = NTFSVolumeManager;
constexpr Action ShowInFinder{"showInFinder:", &target<&Manager::showInFinder>};
constexpr Action Remount{"remountVolume:", &target<&Manager::remountVolume>};
constexpr Action Unmount{"unmountVolume:", &target<&Manager::unmountVolume>};
constexpr Action CleanUp{"cleanupFinderInfo:", &target<&Manager::cleanupFinderInfo>};
constexpr Action Save{"saveVolumeForAutomount:", &target<&Manager::saveVolumeForAutomount>};
constexpr Action Unsave{"unsaveVolumeForAutomount:", &target<&Manager::unsaveVolumeForAutomount>};

MenuItem statusLine(std::string title) {
    MenuItem item;
    item.tag = MainTag;
    item.title = std::move(title);
    return item;
}

MenuItem separator() {
    MenuItem item;
    item.tag = MainTag;
    item.separator = true;
    return item;
}

MenuItem volumeItem(NTFSVolumeManager& manager, const std::shared_ptr<NTFSVolume>& volume,
                    std::string title, const Action& action) {
    MenuItem item;
    item.tag = MainTag;
    item.title = std::move(title);
    item.action = action.selector;
    item.target = action.on(manager);
    item.representedObject = volume;
    return item;
}

MenuItem secondaryItem(NTFSVolumeManager& manager, const std::shared_ptr<NTFSVolume>& volume,
                       std::string title, const Action& action) {
    auto item = volumeItem(manager, volume, std::move(title), action);
    item.tag = SecondaryTag;
    item.alignment = SecondaryAlignment;
    return item;
}

/// Inserts each volume's group of menu items.
class VolumeGroups {
  public:
    VolumeGroups(const platform::Platform& platform, NTFSVolumeManager& manager)
        : menu_(platform.statusMenu),
          bundle_(platform.bundle),
          platform_(platform),
          manager_(manager) {}

    // Inserts at the top, so the last volume of the list comes first.
    void insert(const std::shared_ptr<NTFSVolume>& volume) {
        const auto& main = volume->writable() ? ShowInFinder : Remount;
        const auto* const title = volume->writable() ? "show %@ in Finder" : "re-mount %@";
        menu_.insertItem(
            volumeItem(manager_, volume,
                       platform::stringWithFormat(bundle_.localizedString(title), volume->label()),
                       main),
            0);
        const bool listed = VolumeListHelper::contains(platform_.userDefaults, volume->uuid());
        if (volume->writable()) {
            insertWritable(volume, listed);
        } else {
            insertReadOnly(volume, listed);
        }
    }

  private:
    void insertReadOnly(const std::shared_ptr<NTFSVolume>& volume, bool listed) {
        if (!volume->notificationSent() && !listed) postRemountPrompt(platform_, volume);
        // Deliberately not 1: the separator goes below the item that follows this one-item group.
        menu_.insertItem(separator(), 2);
    }

    void insertWritable(const std::shared_ptr<NTFSVolume>& volume, bool listed) {
        std::size_t index = 1;
        insertSecondary(volume, "unmount", Unmount, index++);
        insertSecondary(volume, "remove all extended attributes", CleanUp, index++);
        if (volume->uuid() && listed) insertSecondary(volume, "mount manually", Unsave, index++);
        if (volume->uuid() && !listed)
            insertSecondary(volume, "mount automatically", Save, index++);
        menu_.insertItem(separator(), index);
    }

    void insertSecondary(const std::shared_ptr<NTFSVolume>& volume, const char* title,
                         const Action& action, std::size_t index) {
        menu_.insertItem(secondaryItem(manager_, volume, bundle_.localizedString(title), action),
                         index);
    }

    platform::Menu& menu_;
    const platform::Bundle& bundle_;
    const platform::Platform& platform_;
    NTFSVolumeManager& manager_;
};

void showStatusLine(const platform::Platform& platform, const char* title) {
    platform.statusMenu.insertItem(statusLine(platform.bundle.localizedString(title)), 0);
    platform.statusMenu.insertItem(separator(), 1);
}

}  // namespace

void AppDelegate::refreshVolumes() {
    platform_.statusMenu.removeItemsWithTags(GeneratedTags);
    if (volumeManager_->inProgress()) {
        showStatusLine(platform_, "Brisel is operating ...");
        statusIcon_ = StatusIcon::InProgress;
    } else if (volumeManager_->volumes().empty()) {
        showStatusLine(platform_, "No NTFS Volumes to re-mount");
        statusIcon_ = StatusIcon::NoVolumes;
    } else {
        VolumeGroups groups(platform_, *volumeManager_);
        for (const auto& volume : volumeManager_->volumes())
            groups.insert(volume);
        const bool writable = volumeManager_->volumes().back()->writable();
        statusIcon_ = writable ? StatusIcon::Writable : StatusIcon::ReadOnly;
    }
    refreshIcon();
}

}  // namespace brisel
