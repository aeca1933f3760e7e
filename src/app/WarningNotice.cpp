// The warning notice shown at the first start.
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/Preferences.h"
#include "platform/Alert.h"
#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/SystemLog.h"
#include "platform/UserDefaults.h"

namespace brisel {

namespace {

std::string informativeText(const platform::Bundle& bundle) {
    return bundle.localizedString(
               "Brisel reveals the already exsisting write function of the macOS NTFS kernel "
               "driver. The function is hidden by default for a good reason: Because it is "
               "experimental. You may encounter problems when the device is removed unexpectly, "
               "without proper unmount action.") +
           "\n\n" +
           bundle.localizedString("Please make sure to always have a good backup in place.") +
           "\n\n" + bundle.localizedString("The usage of Brisel is at your own risk.") + "\n" +
           bundle.localizedString("You will find further information on Brisel website.");
}

}  // namespace

AppDelegate::Answer AppDelegate::showWarningNotice() {
    const auto& bundle = platform_.bundle;
    const int response = platform_.alert.runModal(
        {.messageText = bundle.localizedString("A Warning Notice - Please Read Carefully"),
         .informativeText = informativeText(bundle),
         .buttons = {bundle.localizedString("OK, I understand."),
                     bundle.localizedString("I am worried, please take me out.")}});
    if (response == platform::AlertFirstButtonReturn) {
        platform_.systemLog.log("User accepted the potential risk.");
        platform_.userDefaults.setBool(ShowDisclaimerKey, false);
        return Answer::Accepted;
    }
    platform_.systemLog.log("User did not accept risk, app will terminate.");
    platform_.userDefaults.setBool(ShowDisclaimerKey, true);
    platform_.application.terminate();
    return Answer::Refused;
}

}  // namespace brisel
