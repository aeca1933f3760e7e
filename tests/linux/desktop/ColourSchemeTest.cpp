// The colour scheme of the Settings portal, in each form that portals use.
// SPDX-License-Identifier: MIT
#include "platform/desktop/ColourScheme.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::desktop {

namespace {

using Scheme = ColourScheme::Scheme;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::FakePortal;
using tests::turnUntil;

constexpr std::uint32_t NoPreference = 0;
constexpr std::uint32_t PreferDark = 1;
constexpr std::uint32_t PreferLight = 2;

class TheColourScheme : public testing::Test {
  protected:
    void start() {
        scheme_ = std::make_unique<ColourScheme>(
            bus_, [this](Scheme scheme) { changes_.push_back(scheme); });
    }
    void startWith(FakePortal& portal) {
        portal.service.appear();
        start();
        // Asked at the start, and when the portal appears.
        turnUntil([&] { return portal.timesAsked() == 2; });
        catchUp();
    }
    /// Waits until the program has handled all messages sent to it.
    void catchUp() { static_cast<void>(observer_.newSignals()); }
    void waitForChanges(std::size_t count) {
        turnUntil([&] { return changes_.size() >= count; });
        catchUp();
    }

    GDBusConnection* bus_ = tests::SessionBus::shared().program();
    tests::TestLoop loop_;
    tests::BusCaller observer_{"org.freedesktop.DBus", "/", "org.freedesktop.DBus"};
    std::vector<Scheme> changes_;
    std::unique_ptr<ColourScheme> scheme_;
};

TEST_F(TheColourScheme, IsLightWithoutAPreference) {
    for (const auto setting : {NoPreference, PreferLight}) {
        FakePortal portal(setting);
        startWith(portal);
        EXPECT_THAT(changes_, IsEmpty());
    }
}

TEST_F(TheColourScheme, FollowsTheSetting) {
    FakePortal portal(NoPreference);
    startWith(portal);
    portal.change(PreferDark);
    waitForChanges(1);
    portal.change(PreferDark);
    portal.change(PreferLight);
    waitForChanges(2);
    EXPECT_THAT(changes_, ElementsAre(Scheme::Dark, Scheme::Light));
}

TEST_F(TheColourScheme, IsReadAgainWhenThePortalRestarts) {
    auto first = std::make_unique<FakePortal>(NoPreference);
    startWith(*first);
    first.reset();
    FakePortal second(PreferDark);
    second.service.appear();
    waitForChanges(1);
    EXPECT_THAT(changes_, ElementsAre(Scheme::Dark));
}

TEST_F(TheColourScheme, IsDarkFromTheStartWhereItIsSetSoAndStaysWhenThePortalGoes) {
    auto portal = std::make_unique<FakePortal>(PreferDark);
    portal->service.appear();
    start();
    waitForChanges(1);
    portal.reset();
    catchUp();
    EXPECT_THAT(changes_, ElementsAre(Scheme::Dark));
}

TEST_F(TheColourScheme, AcceptsAValueInASingleVariant) {
    FakePortal portal(NoPreference);
    portal.service.on("Read", [](const tests::BusCall& call) {
        call.answer(g_variant_new("(v)", g_variant_new_uint32(PreferDark)));
    });
    portal.service.appear();
    start();
    waitForChanges(1);
    EXPECT_THAT(changes_, ElementsAre(Scheme::Dark));
}

TEST_F(TheColourScheme, IgnoresErrorsAndAnswersOfOtherTypes) {
    FakePortal portal(NoPreference);
    for (const char* const text :
         {"(<'dark'>,)", "(<<int32 1>>,)", "(uint32 1, uint32 1)", "()", "('dark',)", "an error"}) {
        bool asked = false;
        portal.service.on("Read", [&](const tests::BusCall& call) {
            asked = true;
            if (*text == '(') return call.answer(g_variant_new_parsed(text));
            call.refuse("org.freedesktop.portal.Error.NotFound");
        });
        portal.service.appear();
        start();
        turnUntil([&asked] { return asked; });
        catchUp();
        EXPECT_THAT(changes_, IsEmpty()) << text;
        portal.change(PreferDark);
        waitForChanges(1);
        EXPECT_THAT(changes_, ElementsAre(Scheme::Dark)) << text;
        changes_.clear();
        portal.service.vanish();
    }
}

TEST_F(TheColourScheme, IgnoresOtherSettingsAndSignalsOfOtherTypes) {
    FakePortal portal(NoPreference);
    startWith(portal);
    auto* const dark = g_variant_new_variant(g_variant_new_uint32(PreferDark));
    g_variant_ref_sink(dark);
    const char* const signal = "SettingChanged";
    portal.service.emit(signal, g_variant_new("(ss@v)", "org.gnome.desktop", "color-scheme", dark));
    portal.service.emit(signal,
                        g_variant_new("(ss@v)", "org.freedesktop.appearance", "contrast", dark));
    portal.service.emit(signal, g_variant_new("(s@v)", "org.freedesktop.appearance", dark));
    portal.service.emit(signal, nullptr);
    portal.change(PreferDark);
    waitForChanges(1);
    EXPECT_THAT(changes_, ElementsAre(Scheme::Dark));
    g_variant_unref(dark);
}

TEST_F(TheColourScheme, IgnoresOtherSenders) {
    FakePortal portal(NoPreference);
    FakePortal stranger(NoPreference);
    startWith(portal);
    const auto* const program = g_dbus_connection_get_unique_name(bus_);
    for (const char* const receiver : {program, static_cast<const char*>(nullptr)}) {
        g_dbus_connection_emit_signal(
            stranger.service.bus(), receiver, "/org/freedesktop/portal/desktop",
            "org.freedesktop.portal.Settings", "SettingChanged",
            g_variant_new("(ssv)", "org.freedesktop.appearance", "color-scheme",
                          g_variant_new_uint32(PreferDark)),
            nullptr);
    }
    g_dbus_connection_flush_sync(stranger.service.bus(), nullptr, nullptr);
    portal.change(PreferLight);
    catchUp();
    EXPECT_THAT(changes_, IsEmpty());
}

TEST_F(TheColourScheme, ReportsNothingAfterItsDestruction) {
    FakePortal portal(PreferDark);
    std::vector<tests::BusCall> waiting;
    portal.service.on("Read", [&](const tests::BusCall& call) { waiting.push_back(call); });
    portal.service.appear();
    start();
    turnUntil([&waiting] { return waiting.size() == 2; });
    scheme_.reset();
    for (const auto& call : waiting)
        call.answer(g_variant_new_parsed("(<uint32 1>,)"));
    portal.change(PreferDark);
    catchUp();
    EXPECT_THAT(changes_, IsEmpty());
}

}  // namespace

}  // namespace brisel::platform::desktop
