// Fake desktop services: a tray, a notification server, the Settings portal.
// SPDX-License-Identifier: MIT
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::tests {

namespace {

const FakeService::Interface TrayInterface{.busName = "org.kde.StatusNotifierWatcher",
                                           .path = "/StatusNotifierWatcher",
                                           .name = "org.kde.StatusNotifierWatcher",
                                           .introspection = R"(
<node><interface name='org.kde.StatusNotifierWatcher'>
  <method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
  <property name='IsStatusNotifierHostRegistered' type='b' access='read'/>
</interface></node>)"};

const FakeService::Interface NotificationsInterface{.busName = "org.freedesktop.Notifications",
                                                    .path = "/org/freedesktop/Notifications",
                                                    .name = "org.freedesktop.Notifications",
                                                    .introspection = R"(
<node><interface name='org.freedesktop.Notifications'>
  <method name='GetServerInformation'/>
  <method name='GetCapabilities'/>
  <method name='Notify'>
    <arg type='s' direction='in'/><arg type='u' direction='in'/><arg type='s' direction='in'/>
    <arg type='s' direction='in'/><arg type='s' direction='in'/><arg type='as' direction='in'/>
    <arg type='a{sv}' direction='in'/><arg type='i' direction='in'/>
  </method>
  <method name='CloseNotification'><arg type='u' direction='in'/></method>
</interface></node>)"};

const FakeService::Interface PortalInterface{.busName = "org.freedesktop.portal.Desktop",
                                             .path = "/org/freedesktop/portal/desktop",
                                             .name = "org.freedesktop.portal.Settings",
                                             .introspection = R"(
<node><interface name='org.freedesktop.portal.Settings'>
  <method name='Read'><arg type='s' direction='in'/><arg type='s' direction='in'/></method>
</interface></node>)"};

std::string textIn(GVariant* tuple, gsize index) {
    const OwnedVariant child(g_variant_get_child_value(tuple, index));
    return g_variant_get_string(child.get(), nullptr);
}

std::vector<std::string> textsIn(GVariant* tuple, gsize index) {
    const OwnedVariant list(g_variant_get_child_value(tuple, index));
    std::vector<std::string> texts;
    for (gsize at = 0; at < g_variant_n_children(list.get()); ++at)
        texts.push_back(textIn(list.get(), at));
    return texts;
}

std::map<std::string, std::string> hintsIn(GVariant* tuple, gsize index) {
    const OwnedVariant hints(g_variant_get_child_value(tuple, index));
    std::map<std::string, std::string> texts;
    GVariantIter iterator;
    g_variant_iter_init(&iterator, hints.get());
    const char* name = nullptr;
    GVariant* value = nullptr;
    while (g_variant_iter_loop(&iterator, "{&sv}", &name, &value) != FALSE) {
        const platform::headless::OwnedText text(g_variant_print(value, FALSE));
        texts[name] = text.get();
    }
    return texts;
}

}  // namespace

FakeTray::FakeTray(Host host) : service(TrayInterface) {
    service.on("RegisterStatusNotifierItem", [this](const BusCall& call) {
        registered_.push_back(textIn(call.arguments(), 0));
        call.answer(nullptr);
    });
    service.setProperty("IsStatusNotifierHostRegistered",
                        g_variant_new_boolean(host == Host::There ? TRUE : FALSE));
}

void FakeTray::registerHost() {
    service.setProperty("IsStatusNotifierHostRegistered", g_variant_new_boolean(TRUE));
    service.emit("StatusNotifierHostRegistered", nullptr);
}

FakeNotifications::FakeNotifications(std::vector<std::string> capabilities)
    : service(NotificationsInterface) {
    service.on("GetCapabilities", [capabilities = std::move(capabilities)](const BusCall& call) {
        GVariantBuilder words;
        g_variant_builder_init(&words, G_VARIANT_TYPE("as"));
        for (const auto& word : capabilities)
            g_variant_builder_add(&words, "s", word.c_str());
        call.answer(g_variant_new("(as)", &words));
    });
    service.on("Notify", [this](const BusCall& call) { notify(call); });
    service.on("CloseNotification", [this](const BusCall& call) {
        g_variant_get_child(call.arguments(), 0, "u", &withdrawn_.emplace_back());
        call.answer(nullptr);
        close(withdrawn_.back(), ClosedByCall);
    });
}

void FakeNotifications::notify(const BusCall& call) {
    auto* const tuple = call.arguments();
    NotifyCall notify{.program = textIn(tuple, 0),
                      .icon = textIn(tuple, 2),
                      .summary = textIn(tuple, 3),
                      .body = textIn(tuple, 4),
                      .actions = textsIn(tuple, 5),
                      .hints = hintsIn(tuple, 6)};
    g_variant_get_child(tuple, 1, "u", &notify.replaces);
    g_variant_get_child(tuple, 7, "i", &notify.time);
    calls_.push_back(notify);
    call.answer(g_variant_new("(u)", notify.replaces != 0 ? notify.replaces : next_++));
}

void FakeNotifications::invoke(std::uint32_t number, const char* action) const {
    service.emit("ActionInvoked", g_variant_new("(us)", number, action));
}

void FakeNotifications::giveToken(std::uint32_t number, const char* token) const {
    service.emit("ActivationToken", g_variant_new("(us)", number, token));
}

void FakeNotifications::close(std::uint32_t number, std::uint32_t reason) const {
    service.emit("NotificationClosed", g_variant_new("(uu)", number, reason));
}

BusyNotifications::BusyNotifications(std::vector<std::string> capabilities) {
    program_.run([&] {
        server_.emplace(std::move(capabilities));
        server_->service.appear();
    });
}

BusyNotifications::~BusyNotifications() {
    program_.run([this] { server_.reset(); });
}

std::vector<NotifyCall> BusyNotifications::calls() const {
    std::vector<NotifyCall> calls;
    program_.run([&] { calls = server_->calls(); });
    return calls;
}

FakePortal::FakePortal(std::uint32_t scheme) : service(PortalInterface), scheme_(scheme) {
    service.on("Read", [this](const BusCall& call) {
        ++timesAsked_;
        call.answer(g_variant_new("(v)", g_variant_new_variant(g_variant_new_uint32(scheme_))));
    });
}

void FakePortal::change(std::uint32_t scheme) {
    scheme_ = scheme;
    service.emit("SettingChanged", g_variant_new("(ssv)", "org.freedesktop.appearance",
                                                 "color-scheme", g_variant_new_uint32(scheme)));
}

}  // namespace brisel::tests
