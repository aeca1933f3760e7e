// Opening folders: the file manager on the bus, the portal, the default application.
// SPDX-License-Identifier: MIT
#include "platform/desktop/Workspace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::desktop {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::BusCall;
using tests::FakeService;
using tests::turnUntil;

const FakeService::Interface FileManager{.busName = "org.freedesktop.FileManager1",
                                         .path = "/org/freedesktop/FileManager1",
                                         .name = "org.freedesktop.FileManager1",
                                         .introspection = R"(
<node><interface name='org.freedesktop.FileManager1'>
  <method name='ShowFolders'><arg type='as' direction='in'/><arg type='s' direction='in'/></method>
</interface></node>)"};

const FakeService::Interface Portal{.busName = "org.freedesktop.portal.Desktop",
                                    .path = "/org/freedesktop/portal/desktop",
                                    .name = "org.freedesktop.portal.OpenURI",
                                    .introspection = R"(
<node><interface name='org.freedesktop.portal.OpenURI'>
  <method name='OpenFile'>
    <arg type='s' direction='in'/><arg type='h' direction='in'/><arg type='a{sv}' direction='in'/>
  </method>
</interface></node>)"};

constexpr const char* DesktopFile = R"([Desktop Entry]
Type=Application
Name=Files
Exec=sh FOLDER/script %u
MimeType=inode/directory;
)";

/// The default application for folders, a script. GIO reads these folders once per process.
class DefaultApplication : public testing::Environment {
  public:
    static DefaultApplication& shared() { return *instance; }

    void SetUp() override {
        setenv("XDG_DATA_DIRS", folder_.path().c_str(), 1);
        setenv("XDG_DATA_HOME", folder_.path().c_str(), 1);
        setenv("XDG_CONFIG_HOME", folder_.path().c_str(), 1);
        fs::create_directory(file("applications"));
        std::string text = DesktopFile;
        text.replace(text.find("FOLDER"), 6, folder_.path());
        std::ofstream(file("applications/files.desktop")) << text;
        std::ofstream(file("mimeapps.list"))
            << "[Default Applications]\ninode/directory=files.desktop\n";
    }
    void behave(const std::string& script) const {
        fs::remove(file("given"));
        std::ofstream(file("script"))
            << "cd " << folder_.path() << "\n"
            << script << "\necho \"$1 $XDG_ACTIVATION_TOKEN\" >new && mv new given\n";
    }
    /// The folder and the token that it was started with; empty before that.
    [[nodiscard]] std::string given() const { return textIn("given"); }
    [[nodiscard]] std::string file(const std::string& name) const {
        return folder_.path() + "/" + name;
    }
    [[nodiscard]] std::string textIn(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(file(name)).rdbuf();
        return text.str();
    }

  private:
    static DefaultApplication* const instance;
    tests::TemporaryFolder folder_;
};

DefaultApplication* const DefaultApplication::instance = [] {
    auto* const application = new DefaultApplication();
    testing::AddGlobalTestEnvironment(application);
    return application;
}();

class TheWorkspace : public testing::Test {
  protected:
    TheWorkspace() {
        application_.behave("");
        token_.set("token");
        fileManager_.on("ShowFolders", [this](const BusCall& call) {
            shown_.emplace_back(printed(call.arguments()));
            call.answer(nullptr);
        });
        portal_.on("OpenFile", [this](const BusCall& call) {
            opened_.push_back(call.file());
            const OwnedVariant options(g_variant_get_child_value(call.arguments(), 2));
            options_ = printed(options.get());
            call.answer(g_variant_new("(o)", "/a/request"));
        });
    }

    using OwnedVariant = headless::OwnedVariant;

    static std::string printed(GVariant* value) {
        return headless::OwnedText(g_variant_print(value, FALSE)).get();
    }
    void open() { workspace_.openURL(FileURL(folder_.path())); }
    /// The portal's final answer to the first request of this program.
    void respond(guint32 response) const {
        std::string sender = g_dbus_connection_get_unique_name(bus_) + 1;
        std::replace(sender.begin(), sender.end(), '.', '_');
        g_dbus_connection_emit_signal(
            portal_.bus(), nullptr,
            ("/org/freedesktop/portal/desktop/request/" + sender + "/brisel1").c_str(),
            "org.freedesktop.portal.Request", "Response",
            g_variant_new("(u@a{sv})", response,
                          g_variant_new_array(G_VARIANT_TYPE("{sv}"), nullptr, 0)),
            nullptr);
        g_dbus_connection_flush_sync(portal_.bus(), nullptr, nullptr);
    }

    GDBusConnection* bus_ = tests::SessionBus::shared().program();
    tests::TestLoop loop_;
    tests::RecordedLog log_;
    const DefaultApplication& application_ = DefaultApplication::shared();
    tests::TemporaryFolder folder_;
    FakeService fileManager_{FileManager};
    FakeService portal_{Portal};
    ActivationToken token_;
    Workspace workspace_{bus_, log_, token_};
    std::vector<std::string> shown_;
    std::vector<std::string> opened_;
    std::string options_;
};

TEST_F(TheWorkspace, OpensFoldersInTheFileManagerOnTheBus) {
    fileManager_.appear();
    portal_.appear();
    workspace_.openURL(std::nullopt);
    workspace_.openURL(FileURL("/media/My Data"));
    workspace_.openURL(FileURL("/media/Other"));
    turnUntil([this] { return shown_.size() == 2; });
    EXPECT_THAT(shown_, ElementsAre("(['file:///media/My%20Data/'], 'token')",
                                    "(['file:///media/Other/'], '')"));
    EXPECT_THAT(opened_, IsEmpty());
    EXPECT_THAT(log_.entries(), IsEmpty());
}

TEST_F(TheWorkspace, AsksThePortalIfThereIsNoFileManager) {
    portal_.appear();
    open();
    turnUntil([this] { return !opened_.empty(); });
    respond(0);
    respond(2);
    EXPECT_THAT(opened_, ElementsAre(folder_.path()));
    EXPECT_EQ(options_, "{'handle_token': <'brisel1'>, 'activation_token': <'token'>}");
    loop_.turn();
    EXPECT_THAT(log_.entries(), IsEmpty());
    EXPECT_EQ(application_.given(), "");
}

TEST_F(TheWorkspace, StartsTheDefaultApplicationIfThePortalFails) {
    portal_.appear();
    open();
    turnUntil([this] { return !opened_.empty(); });
    respond(2);
    turnUntil([this] { return !application_.given().empty(); });
    EXPECT_EQ(application_.given(), folder_.path() + " token\n");
    EXPECT_THAT(log_.entries(), ElementsAre("The desktop portal cannot open the folder."));
}

TEST_F(TheWorkspace, LogsWhatCannotStart) {
    fileManager_.on("ShowFolders", [](const BusCall& call) {
        call.refuse("org.freedesktop.DBus.Error.Spawn.ChildExited");
    });
    portal_.on("OpenFile",
               [](const BusCall& call) { call.refuse("org.freedesktop.portal.Error.Failed"); });
    application_.behave("exit 3");
    fileManager_.appear();
    portal_.appear();
    open();
    turnUntil([this] { return log_.entries().size() == 3; });
    EXPECT_THAT(log_.entries(),
                ElementsAre(HasSubstr("The file manager cannot open the folder: "),
                            HasSubstr("The desktop portal cannot open the folder: "),
                            "Files cannot open the folder: Child process exited with code 3"));
}

TEST_F(TheWorkspace, MayEndBeforeTheApplication) {
    application_.behave("echo $$ >pid; while [ ! -e end ]; do sleep 0.01; done; exit 3");
    const auto pid = [this] { return std::atoi(application_.textIn("pid").c_str()); };
    {
        Workspace other(bus_, log_, token_);
        other.openURL(FileURL(folder_.path()));
        turnUntil([&pid] { return pid() > 0; });
    }
    std::ofstream(application_.file("end"));
    turnUntil([&pid] { return kill(pid(), 0) != 0; });
    EXPECT_THAT(log_.entries(), IsEmpty());
}

}  // namespace

}  // namespace brisel::platform::desktop
