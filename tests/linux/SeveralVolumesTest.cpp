// Several real NTFS volumes at once: the menu matches the mounts.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

#include "tests/linux/ConsoleSession.h"
#include "tests/linux/NTFSImage.h"

namespace brisel::tests {

namespace {

using Order = std::vector<std::size_t>;

constexpr std::array<std::size_t, 10> Numbers{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

class SeveralVolumes : public testing::TestWithParam<std::size_t> {
  protected:
    SeveralVolumes() {
        for (std::size_t index = 0; index < GetParam(); ++index) {
            const auto number = std::to_string(index);
            images_.push_back(std::make_unique<NTFSImage>(folder_, label(index), number + ".img"));
        }
    }
    ~SeveralVolumes() override {
        console_.reset();
        images_.clear();
        std::filesystem::remove_all(folder_);
    }
    void SetUp() override {
        ASSERT_TRUE(console_->waitFor("2 = I am worried, please take me out."));
        console_->type("1");
    }

    /// No label contains another.
    [[nodiscard]] static std::string label(std::size_t index) {
        return "Brisel" + std::to_string(getpid()) + "-" + std::to_string(index);
    }
    [[nodiscard]] static std::string showing(std::size_t index) {
        return "  show the folder of " + label(index) + "\n";
    }
    [[nodiscard]] static std::string offering(std::size_t index) {
        return "  re-mount " + label(index) + "\n";
    }

    /// All permutations; for more than three volumes, three samples.
    [[nodiscard]] static std::vector<Order> orders() {
        Order order(GetParam());
        std::iota(order.begin(), order.end(), 0);
        if (order.size() > 3) {
            return {order, Order(order.rbegin(), order.rend()), {3, 9, 0, 5, 8, 1, 7, 2, 6, 4}};
        }
        std::vector<Order> all;
        do {
            all.push_back(order);
        } while (std::next_permutation(order.begin(), order.end()));
        return all;
    }

    /// Requests the menu until it contains `text`; returns it.
    std::string menuWith(const std::string& text) {
        std::string menu;
        await(text, [&] {
            menu = console_->menu();
            return menu.find(text) != std::string::npos;
        });
        return menu;
    }
    /// Types the number of the first `item` below `text`.
    void chooseAfter(const std::string& text, const std::string& item) {
        const auto menu = menuWith(text);
        const auto end = menu.find("  " + item + "\n", menu.find(text));
        ASSERT_NE(end, std::string::npos) << menu;
        const auto start = menu.rfind('\n', end) + 1;
        const auto number = menu.substr(start, end - start);
        console_->type(number.substr(number.find_first_not_of(' ')));
    }
    void remount(std::size_t index) {
        chooseAfter("[Brisel: ", "re-mount " + label(index));
        menuWith(showing(index));
    }

    void attach(const Order& order) {
        for (const auto index : order) {
            images_[index]->attach();
            menuWith(label(index));
        }
    }
    /// A loop device that is detached can come back for a moment with UDisks2 2.10. A volume on the
    /// automount list is then mounted, which fails with an alert.
    void removeAll() {
        for (const auto& image : images_) {
            shell("udisksctl unmount --no-user-interaction -b " + image->device());
            image->detach();
        }
        menuWith("No NTFS Volumes to re-mount");
    }
    void mountAutomatically(std::size_t index) {
        chooseAfter(showing(index), "mount automatically");
    }

    /// Waits until the menu shows as writable exactly the volumes that the kernel has mounted
    /// read-write, and the others as read-only.
    void expectMenuOfMounts() {
        await("the menu equals the mounts", [this] {
            const auto menu = console_->menu();
            return std::all_of(Numbers.begin(), Numbers.begin() + images_.size(), [&](auto index) {
                const bool writable =
                    succeeds("findmnt --options rw --source " + images_[index]->device());
                const auto wanted = writable ? showing(index) : offering(index);
                const auto other = writable ? offering(index) : showing(index);
                return menu.find(wanted) != std::string::npos &&
                       menu.find(other) == std::string::npos;
            });
        });
    }
    void expectAllWritable() {
        expectMenuOfMounts();
        for (const auto& image : images_)
            EXPECT_TRUE(succeeds("findmnt --options rw --source " + image->device()));
    }

    std::string folder_ = shell("mktemp -d");
    std::vector<std::unique_ptr<NTFSImage>> images_;
    std::unique_ptr<ConsoleSession> console_ =
        std::make_unique<ConsoleSession>(BRISEL_CONSOLE, folder_ + "/home");

  private:
    /// Throws if `condition` stays false for 10 seconds.
    void await(const std::string& what, const std::function<bool()>& condition) const {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(45);
        while (!condition()) {
            if (std::chrono::steady_clock::now() > deadline)
                throw std::runtime_error(what + " never came true in\n" + console_->output());
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }
};

TEST_P(SeveralVolumes, RemountedFromTheMenuInAnyOrderAllShowAsWritable) {
    const auto inOrder = orders().front();
    for (const auto& order : orders()) {
        attach(inOrder);
        for (const auto index : order) {
            remount(index);
            expectMenuOfMounts();
        }
        expectAllWritable();
        removeAll();
    }
}

TEST_P(SeveralVolumes, OnTheAutomountListAttachedInAnyOrderAllShowAsWritable) {
    const auto inOrder = orders().front();
    attach(inOrder);
    for (const auto index : inOrder) {
        remount(index);
        mountAutomatically(index);
    }
    removeAll();
    for (const auto& order : orders()) {
        for (const auto index : order)
            images_[index]->attach();
        for (const auto index : order)
            menuWith(showing(index));
        expectAllWritable();
        removeAll();
    }
}

TEST_P(SeveralVolumes, RemountedByThePromptOfTheFirstAllShowAsWritable) {
    attach(orders().front());
    for (std::size_t index = 1; index < images_.size(); ++index) {
        remount(index);
        mountAutomatically(index);
    }
    removeAll();
    images_.front()->attach();
    ASSERT_TRUE(console_->waitFor(label(0) + " detected. Re-mount it read-write?"));
    for (std::size_t index = 1; index < images_.size(); ++index) {
        images_[index]->attach();
        menuWith(showing(index));
    }
    expectMenuOfMounts();
    console_->type("y");
    menuWith(showing(0));
    expectAllWritable();
}

INSTANTIATE_TEST_SUITE_P(Of, SeveralVolumes, testing::Values(2, 3, 10));

}  // namespace

}  // namespace brisel::tests
