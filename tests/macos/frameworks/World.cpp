// The simulated Mac that the stand-in frameworks act on.
// SPDX-License-Identifier: MIT
#include "tests/macos/frameworks/World.h"

#include <cstdlib>
#include <mutex>
#include <utility>

namespace brisel::tests::macos {

namespace {

platform::simulated::Mac* currentWorld = nullptr;
Orders currentOrders;

struct Complaints {
    std::mutex mutex;
    std::vector<std::string> list;
};

Complaints& complaints() {
    static Complaints all;
    return all;
}

}  // namespace

platform::simulated::Mac& world() {
    if (currentWorld == nullptr) std::abort();
    return *currentWorld;
}

void setWorld(platform::simulated::Mac& mac) {
    currentWorld = &mac;
    currentOrders = {};
}

Orders& orders() {
    return currentOrders;
}

void complain(const std::string& complaint) {
    const std::lock_guard lock(complaints().mutex);
    complaints().list.push_back(complaint);
}

std::vector<std::string> takeComplaints() {
    const std::lock_guard lock(complaints().mutex);
    return std::exchange(complaints().list, {});
}

}  // namespace brisel::tests::macos
