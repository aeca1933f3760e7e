// Opens folders through the desktop portal.
// SPDX-License-Identifier: MIT
#include "platform/desktop/OpenURIPortal.h"

#include <fcntl.h>
#include <gio/gunixfdlist.h>

#include <algorithm>
#include <utility>

#include "shared/Descriptor.h"
#include "shared/SettingsPortal.h"

namespace brisel::platform::desktop {

namespace {

// One service and one object have all portals.
constexpr const char* PortalName = shared::SettingsPortal::Name;
constexpr const char* PortalPath = shared::SettingsPortal::Path;
// Neither success nor closed by the user (org.freedesktop.portal.Request).
constexpr guint32 ResponseOther = 2;

// The path that the portal gives to a request.
std::string requestPath(GDBusConnection* bus, const std::string& handle) {
    std::string sender = g_dbus_connection_get_unique_name(bus) + 1;
    std::replace(sender.begin(), sender.end(), '.', '_');
    return std::string(PortalPath) + "/request/" + sender + "/" + handle;
}

GVariant* optionsWith(const std::string& handle, const std::string& activationToken) {
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "handle_token", g_variant_new_string(handle.c_str()));
    if (!activationToken.empty()) {
        g_variant_builder_add(&options, "{sv}", "activation_token",
                              g_variant_new_string(activationToken.c_str()));
    }
    return g_variant_builder_end(&options);
}

}  // namespace

OpenURIPortal::OpenURIPortal(GDBusConnection* bus, platform::SystemLog& log)
    : bus_(static_cast<GDBusConnection*>(g_object_ref(bus))),
      log_(log),
      portal_(bus, PortalName, PortalPath, "org.freedesktop.portal.OpenURI") {}

void OpenURIPortal::open(const FileURL& folder, const std::string& activationToken,
                         std::function<void()> failed) {
    // Not OpenURI, which takes no file, nor OpenDirectory, which opens the folder above.
    const shared::Descriptor opened(
        ::open(folder.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!opened) return failed();
    const auto handle = "brisel" + std::to_string(++requests_);
    awaitResponse(handle, failed);
    openFile(opened.number(), handle, activationToken, std::move(failed));
}

void OpenURIPortal::awaitResponse(const std::string& handle, std::function<void()> failed) {
    response_.reset();
    request_.emplace(bus_.get(), PortalName, requestPath(bus_.get(), handle),
                     "org.freedesktop.portal.Request");
    response_ = request_->onSignal("Response", [this, failed = std::move(failed)](auto* arguments) {
        if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ua{sv})")) == FALSE) return;
        guint32 response = 0;
        g_variant_get_child(arguments, 0, "u", &response);
        response_.reset();
        if (response != ResponseOther) return;
        log_.log("The desktop portal cannot open the folder.");
        failed();
    });
}

void OpenURIPortal::openFile(int folder, const std::string& handle,
                             const std::string& activationToken, std::function<void()> failed) {
    const headless::OwnedObject<GUnixFDList> files(g_unix_fd_list_new());
    const int index = g_unix_fd_list_append(files.get(), folder, nullptr);
    portal_.call(
        "OpenFile", g_variant_new("(sh@a{sv})", "", index, optionsWith(handle, activationToken)),
        [this, failed = std::move(failed)](const auto& answer, const auto& error) {
            if (answer) return;
            response_.reset();
            if (!isMissing(error))
                log_.log("The desktop portal cannot open the folder: %@", error.message());
            failed();
        },
        files.get());
}

}  // namespace brisel::platform::desktop
