// Fuzz target: UDisks2 says anything on the bus, in values of any type.
// SPDX-License-Identifier: MIT
#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/DiskArbitration.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/SystemLog.h"
#include "tests/fuzz/FakeBus.h"
#include "tests/fuzz/Must.h"

namespace {

using namespace brisel::platform::headless;
using brisel::platform::Disk;
using brisel::tests::DiskServiceAnswers;
using brisel::tests::FakeBus;
using brisel::tests::must;

constexpr const char* Manager = "/org/freedesktop/UDisks2";
constexpr const char* Objects = "org.freedesktop.DBus.ObjectManager";
constexpr const char* Blocks = "/org/freedesktop/UDisks2/block_devices/";

struct Property {
    const char* name;
    const char* type;
};

constexpr std::array Properties{Property{"Device", "ay"}, Property{"PreferredDevice", "ay"},
                                Property{"IdType", "s"},  Property{"IdLabel", "s"},
                                Property{"IdUUID", "s"},  Property{"HintIgnore", "b"},
                                Property{"UUID", "s"},    Property{"MountPoints", "aay"},
                                Property{"IdUsage", "s"}, Property{"Symlinks", "aay"},
                                Property{"Drive", "o"},   Property{"Nonsense", "as"}};

constexpr std::array Types{"s", "ay", "aay", "b", "t", "i", "d", "o", "as", "(ss)", "a{su}"};

// Disks that are in order, by names that the nonsense does not have.
constexpr const char* First = "sane0";
constexpr const char* Last = "sane1";
constexpr std::string_view Reserved = "sane";

// `a{sa{sv}}`
GVariant* saneInterfaces(const char* name) {
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("a{sa{sv}}"));
    const auto device = std::string("/dev/") + name;
    g_variant_builder_add_parsed(&builder,
                                 "{'org.freedesktop.UDisks2.Block', {'Device': <%@ay>, "
                                 "'IdType': <'ntfs'>}}",
                                 g_variant_new_bytestring(device.c_str()));
    g_variant_builder_add_parsed(&builder, "{'org.freedesktop.UDisks2.Filesystem', @a{sv} {}}");
    return g_variant_builder_end(&builder);
}

std::string pathOf(const char* name) {
    return std::string(Blocks) + name;
}

/// Values made of a fuzzer's input.
class Nonsense {
  public:
    explicit Nonsense(FuzzedDataProvider& input) : input_(input) {}

    [[nodiscard]] bool goesOn() { return input_.remaining_bytes() > 0 && input_.ConsumeBool(); }

    [[nodiscard]] const char* path() {
        return input_.PickValueInArray({"/org/freedesktop/UDisks2/block_devices/sda1",
                                        "/org/freedesktop/UDisks2/block_devices/sdb1",
                                        "/org/freedesktop/UDisks2/Manager", "/"});
    }

    [[nodiscard]] const char* interface() {
        return input_.PickValueInArray({"org.freedesktop.UDisks2.Block",
                                        "org.freedesktop.UDisks2.Filesystem",
                                        "org.freedesktop.UDisks2.Partition", "org.example.Other"});
    }

    /// A value of the type out of any bytes: where they mean nothing, the type's default.
    [[nodiscard]] OwnedVariant value(const char* type) {
        constexpr std::size_t Most = 96;
        auto bytes =
            input_.ConsumeBytesAsString(input_.ConsumeIntegralInRange<std::size_t>(0, Most));
        if (bytes.find(Reserved) != std::string::npos) bytes.clear();
        auto* const memory = g_memdup2(bytes.data(), bytes.size());
        const OwnedVariant raw(g_variant_ref_sink(g_variant_new_from_data(
            G_VARIANT_TYPE(type), memory, bytes.size(), FALSE, g_free, memory)));
        return OwnedVariant(g_variant_get_normal_form(raw.get()));
    }

    /// `a{sv}`
    [[nodiscard]] GVariant* properties() {
        return dictionary("a{sv}", [this](GVariantBuilder& builder) {
            const auto property = input_.PickValueInArray(Properties);
            const bool fits = input_.ConsumeIntegralInRange(0, 3) > 0;
            const auto made = value(fits ? property.type : input_.PickValueInArray(Types));
            g_variant_builder_add(&builder, "{sv}", property.name, made.get());
        });
    }

    /// `a{sa{sv}}`
    [[nodiscard]] GVariant* interfaces() {
        return dictionary("a{sa{sv}}", [this](GVariantBuilder& builder) {
            g_variant_builder_add(&builder, "{s@a{sv}}", interface(), properties());
        });
    }

    /// `a{oa{sa{sv}}}`, a disk in order at its end.
    [[nodiscard]] GVariant* objects() {
        GVariantBuilder builder;
        g_variant_builder_init(&builder, G_VARIANT_TYPE("a{oa{sa{sv}}}"));
        while (goesOn())
            g_variant_builder_add(&builder, "{o@a{sa{sv}}}", path(), interfaces());
        g_variant_builder_add(&builder, "{o@a{sa{sv}}}", pathOf(First).c_str(),
                              saneInterfaces(First));
        return g_variant_builder_end(&builder);
    }

    [[nodiscard]] DiskServiceAnswers answers() {
        DiskServiceAnswers made;
        made.objects.reset(g_variant_ref_sink(objects()));
        switch (input_.ConsumeIntegralInRange(0, 2)) {
            case 0:
                made.mounted = value("(s)");
                break;
            case 1:
                made.mounted = value("(as)");
                break;
            default:
                break;
        }
        made.errorName = "org.freedesktop.UDisks2.Error.Failed";
        if (input_.ConsumeBool()) {
            const auto name = "org." + input_.ConsumeRandomLengthString(24);
            if (g_dbus_is_error_name(name.c_str()) != FALSE) made.errorName = name;
        }
        return made;
    }

    void signal(FakeBus& bus) {
        switch (input_.ConsumeIntegralInRange(0, 2)) {
            case 0:
                bus.emit(Manager, Objects, "InterfacesAdded",
                         g_variant_new("(o@a{sa{sv}})", path(), interfaces()));
                break;
            case 1:
                bus.emit(Manager, Objects, "InterfacesRemoved",
                         g_variant_new("(o@as)", path(), value("as").get()));
                break;
            default:
                bus.emit(
                    path(), "org.freedesktop.DBus.Properties", "PropertiesChanged",
                    g_variant_new("(s@a{sv}@as)", interface(), properties(), value("as").get()));
        }
    }

  private:
    [[nodiscard]] GVariant* dictionary(const char* type,
                                       const std::function<void(GVariantBuilder&)>& addEntry) {
        GVariantBuilder builder;
        g_variant_builder_init(&builder, G_VARIANT_TYPE(type));
        while (goesOn())
            addEntry(builder);
        return g_variant_builder_end(&builder);
    }

    FuzzedDataProvider& input_;
};

/// The Linux machine's Disk Arbitration on that bus, and what it has reported.
class Machine {
  public:
    Machine() {
        appearances_ =
            arbitration_.registerDiskAppearedCallback([this](const Disk& disk, const auto& is) {
                // Nothing appears twice, and only what is mountable.
                must(there_.insert(disk.bsdName).second);
                must(is.volumeMountable == true);
                must(is.volumeKind && !is.volumeKind->empty());
            });
        disappearances_ = arbitration_.registerDiskDisappearedCallback(
            [this](const Disk& disk, const auto&) { must(there_.erase(disk.bsdName) == 1); });
        arbitration_.createSession();
        arbitration_.scheduleWithRunLoop();
    }

    void turnUntil(const std::function<bool()>& reached) {
        constexpr std::chrono::seconds Patience{20};
        const auto end = std::chrono::steady_clock::now() + Patience;
        const auto tick = RunLoop().scheduledTimer(Patience, [] {});
        while (!reached()) {
            must(std::chrono::steady_clock::now() < end);
            g_main_context_iteration(nullptr, TRUE);
        }
    }

    void waitFor(const std::string& device) {
        turnUntil([&] { return there_.contains(device); });
    }
    void askForMount(const std::string& device) {
        bool told = false;
        arbitration_.mountWithArguments({.bsdName = device}, {"rw"},
                                        [&](const Disk& disk, const auto& dissenter) {
                                            must(!told);
                                            told = true;
                                            // Reported as gone before; the core records it anew.
                                            if (!dissenter) there_.insert(disk.bsdName);
                                        });
        turnUntil([&told] { return told; });
    }

  private:
    std::set<std::string> there_;
    SystemLog log_{[](const std::string& /*text*/) {}};
    DiskArbitration arbitration_{log_};
    brisel::platform::Subscription appearances_;
    brisel::platform::Subscription disappearances_;
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argumentCount*/, char*** /*arguments*/) {
    // GLib warns of each value of another type than the interface says, and of names that are none.
    g_log_set_default_handler([](const char*, GLogLevelFlags, const char*, gpointer) {}, nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FakeBus bus;
    FuzzedDataProvider input(data, size);
    Nonsense nonsense(input);
    bus.prepare(nonsense.answers());
    Machine machine;
    machine.waitFor(First);
    while (nonsense.goesOn())
        nonsense.signal(bus);
    bus.emit(Manager, Objects, "InterfacesAdded",
             g_variant_new("(o@a{sa{sv}})", pathOf(Last).c_str(), saneInterfaces(Last)));
    machine.waitFor(Last);
    machine.askForMount(Last);
    return 0;
}
