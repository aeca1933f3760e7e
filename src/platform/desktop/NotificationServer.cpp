// Client of the desktop's notification server.
// SPDX-License-Identifier: MIT
#include "platform/desktop/NotificationServer.h"

#include <utility>

#include "platform/desktop/BusText.h"
#include "platform/headless/Installation.h"

namespace brisel::platform::desktop {

namespace {

constexpr const char* Name = "org.freedesktop.Notifications";
constexpr const char* Path = "/org/freedesktop/Notifications";
constexpr const char* ApplicationName = "Brisel";
constexpr const char* DesktopEntry = "org.brisel.Brisel";

// The server of LXQt draws a button for the default action.
constexpr const char* ServerWithDefaultButton = "lxqt-notificationd";

void addHint(GVariantBuilder& hints, const char* name, GVariant* value) {
    g_variant_builder_add(&hints, "{sv}", name, value);
}

GVariant* actionList(const std::vector<std::pair<std::string, std::string>>& actions,
                     const std::string& server) {
    GVariantBuilder list;
    g_variant_builder_init(&list, G_VARIANT_TYPE("as"));
    for (const auto& [key, label] : actions) {
        if (key == "default" && server == ServerWithDefaultButton) continue;
        g_variant_builder_add(&list, "s", key.c_str());
        g_variant_builder_add(&list, "s", busText(label).c_str());
    }
    return g_variant_builder_end(&list);
}

std::string escaped(const std::string& text) {
    const headless::OwnedText markup(g_markup_escape_text(text.c_str(), -1));
    return markup.get();
}

// Empty if `answer` has another type.
std::set<std::string, std::less<>> wordsIn(GVariant* answer) {
    std::set<std::string, std::less<>> words;
    if (g_variant_is_of_type(answer, G_VARIANT_TYPE("(as)")) == FALSE) return words;
    const headless::OwnedVariant list(g_variant_get_child_value(answer, 0));
    GVariantIter iterator;
    g_variant_iter_init(&iterator, list.get());
    const char* word = nullptr;
    while (g_variant_iter_next(&iterator, "&s", &word) != FALSE)
        words.insert(word);
    return words;
}

}  // namespace

NotificationServer::NotificationServer(GDBusConnection* bus) : server_(bus, Name, Path, Name) {
    watching_ = server_.watch([] {}, [this] { capabilities_.reset(); });
}

void NotificationServer::askForName(std::function<void()> known) {
    server_.call("GetServerInformation", nullptr,
                 [this, known = std::move(known)](const auto& answer, const auto& /*error*/) {
                     name_.clear();
                     if (answer && g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(ssss)"))) {
                         const char* name = nullptr;
                         g_variant_get_child(answer.get(), 0, "&s", &name);
                         name_ = name;
                     }
                     known();
                 });
}

void NotificationServer::askForCapabilities(std::function<void()> known) {
    server_.call("GetCapabilities", nullptr,
                 [this, known = std::move(known)](const auto& answer, const auto& /*error*/) {
                     if (answer) capabilities_ = wordsIn(answer.get());
                     known();
                 });
}

GVariant* NotificationServer::hintsFor(const Notification& notification) const {
    GVariantBuilder hints;
    g_variant_builder_init(&hints, G_VARIANT_TYPE_VARDICT);
    addHint(hints, "urgency", g_variant_new_byte(static_cast<guchar>(notification.urgency)));
    addHint(hints, "desktop-entry", g_variant_new_string(DesktopEntry));
    if (notification.lifetime.count() > 0) addHint(hints, "transient", g_variant_new_boolean(TRUE));
    if (!notification.soundName.empty() && can("sound")) {
        addHint(hints, "sound-name", g_variant_new_string(notification.soundName.c_str()));
    }
    return g_variant_builder_end(&hints);
}

GVariant* NotificationServer::argumentsFor(const Notification& notification) const {
    const auto body = busText(notification.body);
    return g_variant_new("(susss@as@a{sv}i)", ApplicationName, notification.replaces,
                         headless::applicationIcon().c_str(), busText(notification.summary).c_str(),
                         (can("body-markup") ? escaped(body) : body).c_str(),
                         actionList(notification.actions, name_), hintsFor(notification),
                         static_cast<gint32>(notification.lifetime.count()));
}

void NotificationServer::show(const Notification& notification, Shown shown) {
    if (capabilities_) {
        notify(notification, std::move(shown));
        return;
    }
    askForName([this, notification, shown = std::move(shown)] {
        askForCapabilities([this, notification, shown] { notify(notification, shown); });
    });
}

void NotificationServer::notify(const Notification& notification, Shown shown) {
    server_.call("Notify", argumentsFor(notification),
                 [shown = std::move(shown)](const headless::OwnedVariant& answer,
                                            const headless::CallError& error) {
                     const bool understood =
                         answer &&
                         g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(u)")) != FALSE;
                     std::uint32_t number = 0;
                     if (understood) g_variant_get(answer.get(), "(u)", &number);
                     const Error failure{.localizedDescription = error.message(),
                                         .localizedFailureReason = std::nullopt};
                     shown(number, understood ? std::nullopt : std::optional(failure));
                 });
}

void NotificationServer::showCritical(const std::string& summary, const std::string& body) {
    Notification notification{.summary = summary, .body = body};
    notification.urgency = Notification::Urgency::Critical;
    if (!capabilities_) {
        const auto answer = server_.callAndWait("GetCapabilities", nullptr);
        if (answer) capabilities_ = wordsIn(answer.get());
    }
    server_.callAndWait("Notify", argumentsFor(notification));
}

void NotificationServer::withdraw(std::uint32_t number) {
    server_.call("CloseNotification", g_variant_new("(u)", number), {});
}

Subscription NotificationServer::onNumberAndText(
    const char* signal, std::function<void(std::uint32_t, const std::string&)> received) {
    return server_.onSignal(signal, [received = std::move(received)](GVariant* arguments) {
        if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(us)")) == FALSE) return;
        std::uint32_t number = 0;
        const char* text = nullptr;
        g_variant_get(arguments, "(u&s)", &number, &text);
        received(number, text);
    });
}

Subscription NotificationServer::onActionInvoked(ActionInvoked invoked) {
    return onNumberAndText("ActionInvoked", std::move(invoked));
}

Subscription NotificationServer::onActivationToken(TokenGiven given) {
    return onNumberAndText("ActivationToken", std::move(given));
}

Subscription NotificationServer::onClosed(Closed closed) {
    return server_.onSignal(
        "NotificationClosed", [closed = std::move(closed)](GVariant* arguments) {
            if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(uu)")) == FALSE) return;
            std::uint32_t number = 0;
            std::uint32_t reason = 0;
            g_variant_get(arguments, "(uu)", &number, &reason);
            closed(number, reason);
        });
}

Subscription NotificationServer::onVanished(std::function<void()> vanished) {
    return server_.watch([] {}, std::move(vanished));
}

}  // namespace brisel::platform::desktop
