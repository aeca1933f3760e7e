// The application's resources where they are built into the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Bundle.h"
#include "platform/common/StringsTable.h"

namespace brisel::platform::common {

/// One language's table as it stands in the resources.
struct EmbeddedTable {
    std::string_view language;
    std::string_view text;
};

/// All tables that were built in; defined in a source made from resources/.
const std::vector<EmbeddedTable>& embeddedTables();

class Bundle : public platform::Bundle {
  public:
    /// English.
    Bundle();

    /// Takes the texts of this language, such as "de", "pt-BR" or "zh-Hans"; for an unknown
    /// variant those of the plain language, for an unknown language the English ones.
    void setLanguage(std::string_view code) { setLanguages({std::string(code)}); }
    /// The same for the first of these languages that there are texts in.
    void setLanguages(const std::vector<std::string>& codes);
    /// The language of the texts.
    [[nodiscard]] const std::string& language() const { return language_; }

    [[nodiscard]] std::string localizedString(std::string_view key) const override;
    /// The ten status images.
    [[nodiscard]] bool hasImage(const std::string& name) const override;

  private:
    std::string language_;
    StringsTable texts_;
};

}  // namespace brisel::platform::common
