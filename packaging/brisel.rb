# How Homebrew installs Brisel.app from its disk image; docs/macos.md tells how the checksum gets in.
# SPDX-License-Identifier: MIT
cask "brisel" do
  version "1.0.0"
  sha256 "0000000000000000000000000000000000000000000000000000000000000000"

  url "https://brisel.example/downloads/Brisel-#{version}.dmg"
  name "Brisel"
  desc "Mount NTFS volumes read-write"
  homepage "https://brisel.example/"

  depends_on macos: ">= :big_sur"

  app "Brisel.app"

  uninstall launchctl: "org.brisel.BriselHelper",
            quit:      "org.brisel.Brisel"

  # The folder may hold volumes that are mounted: it goes only when it is empty.
  zap trash: "~/Library/Preferences/org.brisel.Brisel.plist",
      rmdir: "~/.brisel"
end
