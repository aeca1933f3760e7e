// Starts the default application for folders.
// SPDX-License-Identifier: MIT
#include "platform/desktop/FolderApplication.h"

#include <gio/gdesktopappinfo.h>

#include <chrono>
#include <memory>
#include <utility>

#include "platform/desktop/ActivationToken.h"

namespace brisel::platform::desktop {

namespace {

using Clock = std::chrono::steady_clock;

// A later failure has nothing to do with the start.
constexpr std::chrono::seconds TimeToStart{10};

/// A started application; outlives a destroyed FolderApplication, and is cancelled by it.
struct Start {
    platform::SystemLog& log;
    headless::OwnedObject<GCancellable> cancellable;
    std::string application;
    Clock::time_point time = Clock::now();

    void fail(const headless::CallError& error) const {
        if (g_cancellable_is_cancelled(cancellable.get()) != FALSE) return;
        log.log("%@ cannot open the folder: %@", application, error.message());
    }
};

headless::OwnedObject<GAppLaunchContext> contextWith(const std::string& activationToken) {
    headless::OwnedObject<GAppLaunchContext> context(g_app_launch_context_new());
    for (const char* const variable : ActivationToken::LaunchVariables) {
        if (activationToken.empty()) {
            g_app_launch_context_unsetenv(context.get(), variable);
        } else {
            g_app_launch_context_setenv(context.get(), variable, activationToken.c_str());
        }
    }
    return context;
}

void noteEnd(GPid /*process*/, gint waitStatus, gpointer start) {
    const auto& started = *static_cast<Start*>(start);
    headless::CallError error;
    const bool succeeded = g_spawn_check_wait_status(waitStatus, error.receive()) != FALSE;
    if (!succeeded && Clock::now() - started.time < TimeToStart) started.fail(error);
}

void dropStart(gpointer start) {
    delete static_cast<Start*>(start);
}

// Also reaps the process.
void watch(GDesktopAppInfo* /*application*/, GPid process, gpointer start) {
    auto* const source = g_child_watch_source_new(process);
    // gcc accepts a cast between function types by way of this one.
    const auto callback = reinterpret_cast<void (*)()>(&noteEnd);
    g_source_set_callback(source, reinterpret_cast<GSourceFunc>(callback),
                          static_cast<std::unique_ptr<Start>*>(start)->release(), &dropStart);
    g_source_attach(source, g_main_context_get_thread_default());
    g_source_unref(source);
}

void finishActivation(GObject* application, GAsyncResult* result, gpointer start) {
    const std::unique_ptr<Start> started(static_cast<Start*>(start));
    headless::CallError error;
    g_app_info_launch_uris_finish(G_APP_INFO(application), result, error.receive());
    if (error) started->fail(error);
}

void activate(GDesktopAppInfo* application, GList& urls, GAppLaunchContext* context,
              std::unique_ptr<Start> start) {
    auto* const cancellable = start->cancellable.get();
    g_app_info_launch_uris_async(G_APP_INFO(application), &urls, context, cancellable,
                                 &finishActivation, start.release());
}

void spawn(GDesktopAppInfo* application, GList& urls, GAppLaunchContext* context,
           std::unique_ptr<Start> start) {
    constexpr auto Flags =
        static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD);
    headless::CallError error;
    g_desktop_app_info_launch_uris_as_manager(application, &urls, context, Flags, nullptr, nullptr,
                                              &watch, &start, error.receive());
    // The watch of a spawned process has taken `start`.
    if (error && start) start->fail(error);
}

}  // namespace

void FolderApplication::open(const FileURL& folder, const std::string& activationToken) {
    const headless::OwnedObject<GAppInfo> found(
        g_app_info_get_default_for_type("inode/directory", FALSE));
    if (!found) {
        log_.log("Cannot open the folder: no application opens folders.");
        return;
    }
    auto* const application = G_DESKTOP_APP_INFO(found.get());
    const auto context = contextWith(activationToken);
    auto url = folder.absoluteString();
    GList urls{.data = url.data(), .next = nullptr, .prev = nullptr};
    auto* const cancellable = G_CANCELLABLE(g_object_ref(cancellable_.get()));
    auto start = std::make_unique<Start>(
        Start{.log = log_,
              .cancellable = headless::OwnedObject<GCancellable>(cancellable),
              .application = g_app_info_get_name(found.get())});
    const bool onBus = g_desktop_app_info_get_boolean(application, "DBusActivatable") != FALSE;
    (onBus ? activate : spawn)(application, urls, context.get(), std::move(start));
}

}  // namespace brisel::platform::desktop
