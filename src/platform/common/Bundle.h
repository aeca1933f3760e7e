// Resources built into the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Bundle.h"
#include "platform/common/StringsTable.h"

namespace brisel::platform::common {

/// One language's Localizable.strings.
struct EmbeddedTable {
    std::string_view language;
    std::string_view text;
};

/// All embedded tables; defined in a source generated from resources/.
const std::vector<EmbeddedTable>& embeddedTables();

class Bundle : public platform::Bundle {
  public:
    /// Selects English. The texts of `overlay`, which must outlive the bundle, replace those of the
    /// embedded table of their language.
    explicit Bundle(std::span<const EmbeddedTable> overlay = {});

    /// Selects a language, such as "de", "pt-BR" or "zh-Hans". Falls back from a variant to its
    /// base language, then to English.
    void setLanguage(std::string_view code) { setLanguages({std::string(code)}); }
    /// Selects the first of `codes` for which a table, or its base language's, exists; else
    /// English.
    void setLanguages(const std::vector<std::string>& codes);
    /// The selected table's language.
    [[nodiscard]] const std::string& language() const { return language_; }

    [[nodiscard]] std::string localizedString(std::string_view key) const override;
    /// The ten status images.
    [[nodiscard]] bool hasImage(const std::string& name) const override;

  private:
    std::span<const EmbeddedTable> overlay_;
    std::string language_;
    StringsTable texts_;
};

}  // namespace brisel::platform::common
