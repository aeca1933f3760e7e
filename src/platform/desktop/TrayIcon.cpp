// The icon in the desktop's tray.
// SPDX-License-Identifier: MIT
#include "platform/desktop/TrayIcon.h"

#include <unistd.h>

#include <array>
#include <functional>
#include <utility>

#include "platform/headless/Installation.h"

namespace brisel::platform::desktop {

namespace {

using std::chrono::milliseconds;

constexpr const char* ItemInterface = "org.kde.StatusNotifierItem";
constexpr const char* WatcherName = "org.kde.StatusNotifierWatcher";
constexpr const char* WatcherPath = "/StatusNotifierWatcher";
constexpr const char* ProgramName = "Brisel";

// The members that Brisel needs, and Ayatana's IconAccessibleDesc for assistive technology.
constexpr const char* Introspection = R"(
<node><interface name='org.kde.StatusNotifierItem'>
  <property name='Category' type='s' access='read'/>
  <property name='Id' type='s' access='read'/>
  <property name='Title' type='s' access='read'/>
  <property name='Status' type='s' access='read'/>
  <property name='WindowId' type='i' access='read'/>
  <property name='IconName' type='s' access='read'/>
  <property name='IconThemePath' type='s' access='read'/>
  <property name='IconAccessibleDesc' type='s' access='read'/>
  <property name='ToolTip' type='(sa(iiay)ss)' access='read'/>
  <property name='ItemIsMenu' type='b' access='read'/>
  <property name='Menu' type='o' access='read'/>
  <method name='Activate'><arg type='i' direction='in'/><arg type='i' direction='in'/></method>
  <method name='ContextMenu'><arg type='i' direction='in'/><arg type='i' direction='in'/></method>
  <method name='ProvideXdgActivationToken'><arg type='s' direction='in'/></method>
  <signal name='NewTitle'/>
  <signal name='NewIcon'/>
  <signal name='NewToolTip'/>
</interface></node>)";

void answerMethod(GDBusConnection* /*bus*/, const gchar* /*sender*/, const gchar* /*path*/,
                  const gchar* /*interface*/, const gchar* method, GVariant* /*arguments*/,
                  GDBusMethodInvocation* invocation, gpointer icon) {
    static_cast<TrayIcon*>(icon)->answer(method, invocation);
}

GVariant* answerProperty(GDBusConnection* /*bus*/, const gchar* /*sender*/, const gchar* /*path*/,
                         const gchar* /*interface*/, const gchar* name, GError** /*error*/,
                         gpointer icon) {
    return static_cast<const TrayIcon*>(icon)->property(name);
}

GVariant* text(const std::string& value) {
    return g_variant_new_string(value.c_str());
}

}  // namespace

TrayIcon::TrayIcon(Dependencies dependencies, milliseconds patience)
    : dependencies_(std::move(dependencies)),
      bus_(static_cast<GDBusConnection*>(g_object_ref(dependencies_.bus))),
      themePath_(headless::iconThemePath()),
      busName_("org.kde.StatusNotifierItem-" + std::to_string(getpid()) + "-1"),
      object_(exportObject()),
      ownName_(g_bus_own_name_on_connection(bus_.get(), busName_.c_str(),
                                            G_BUS_NAME_OWNER_FLAGS_NONE, &TrayIcon::noteName,
                                            nullptr, this, nullptr)),
      watcher_(bus_.get(), WatcherName, WatcherPath, WatcherName) {
    waitForHost(patience);
}

TrayIcon::~TrayIcon() {
    g_bus_unown_name(ownName_);
    if (object_ != 0) g_dbus_connection_unregister_object(bus_.get(), object_);
}

guint TrayIcon::exportObject() {
    static constexpr GDBusInterfaceVTable Answers{&answerMethod, &answerProperty, nullptr, {}};
    headless::CallError error;
    auto* const node = g_dbus_node_info_new_for_xml(Introspection, error.receive());
    const auto object = g_dbus_connection_register_object(bus_.get(), ObjectPath, *node->interfaces,
                                                          &Answers, this, nullptr, error.receive());
    g_dbus_node_info_unref(node);
    if (error) {
        dependencies_.log.log("Cannot export the tray icon on the session bus: %@",
                              error.message());
    }
    return object;
}

// Hosts look at an item as soon as it registers.
void TrayIcon::noteName(GDBusConnection* /*bus*/, const gchar* /*name*/, gpointer icon) {
    static_cast<TrayIcon*>(icon)->watchForHosts();
}

void TrayIcon::watchForHosts() {
    watching_ = watcher_.watch([this] { registerWithWatcher(); }, [] {});
    hostComing_ = watcher_.onSignal("StatusNotifierHostRegistered",
                                    [this](auto* /*arguments*/) { registerSoon(); });
}

// Plasma calls Activate in spite of ItemIsMenu, and opens the menu only if that fails.
void TrayIcon::answer(const std::string& method, GDBusMethodInvocation* invocation) {
    if (method == "ProvideXdgActivationToken") {
        const char* token = nullptr;
        g_variant_get(g_dbus_method_invocation_get_parameters(invocation), "(&s)", &token);
        dependencies_.activationToken.set(token);
        g_dbus_method_invocation_return_value(invocation, nullptr);
        return;
    }
    g_dbus_method_invocation_return_error_literal(
        invocation, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_METHOD, "The item is a menu.");
    dependencies_.clicked();
}

void TrayIcon::show(TrayLook look) {
    if (look == look_) return;
    look_ = std::move(look);
    for (const char* const signal : {"NewIcon", "NewTitle", "NewToolTip"}) {
        g_dbus_connection_emit_signal(bus_.get(), nullptr, ObjectPath, ItemInterface, signal,
                                      nullptr, nullptr);
    }
}

std::string TrayIcon::title() const {
    return look_.words.empty() ? ProgramName : ProgramName + (": " + look_.words);
}

GVariant* TrayIcon::toolTip() const {
    return g_variant_new("(s@a(iiay)ss)", look_.iconName.c_str(),
                         g_variant_new_array(G_VARIANT_TYPE("(iiay)"), nullptr, 0), ProgramName,
                         look_.words.c_str());
}

GVariant* TrayIcon::property(const std::string& name) const {
    using Property = std::pair<std::string_view, std::function<GVariant*()>>;
    const std::array properties{
        Property{"Category", [] { return text("Hardware"); }},
        Property{"Id", [] { return text("brisel"); }},
        Property{"Title", [this] { return text(title()); }},
        Property{"Status", [] { return text("Active"); }},
        Property{"WindowId", [] { return g_variant_new_int32(0); }},
        Property{"IconName", [this] { return text(look_.iconName); }},
        Property{"IconThemePath", [this] { return text(themePath_); }},
        Property{"IconAccessibleDesc", [this] { return text(look_.words); }},
        Property{"ToolTip", [this] { return toolTip(); }},
        Property{"ItemIsMenu", [] { return g_variant_new_boolean(TRUE); }},
        Property{"Menu",
                 [this] { return g_variant_new_object_path(dependencies_.menuPath.c_str()); }}};
    for (const auto& [known, value] : properties) {
        if (known == name) return value();
    }
    return nullptr;
}

void TrayIcon::registerSoon() {
    constexpr milliseconds Pause{100};
    registration_ = headless::RunLoop().scheduledTimer(Pause, [this] {
        const auto once = std::move(registration_);
        registerWithWatcher();
    });
}

// Safe to repeat: the watcher ignores a registered name. By its unique name, because GNOME's
// extension asks again for the owner of any other name, and drops the item if that answer comes
// late.
void TrayIcon::registerWithWatcher() {
    watcher_.call("RegisterStatusNotifierItem",
                  g_variant_new("(s)", g_dbus_connection_get_unique_name(bus_.get())), {});
    watcher_.readProperty("IsStatusNotifierHostRegistered", [this](const auto& there, const auto&) {
        const bool isBoolean = there && g_variant_is_of_type(there.get(), G_VARIANT_TYPE_BOOLEAN);
        if (isBoolean && g_variant_get_boolean(there.get()) != FALSE) patience_.reset();
    });
}

void TrayIcon::waitForHost(milliseconds patience) {
    patience_ = headless::RunLoop().scheduledTimer(patience, [this] {
        const auto once = std::move(patience_);
        dependencies_.log.log(
            "This desktop has no tray for status icons. Prompts still work; start Brisel again to "
            "open its menu.");
    });
}

}  // namespace brisel::platform::desktop
