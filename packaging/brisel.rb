# Homebrew cask of Brisel.app; docs/macos.md says how a release fills in the checksum.
# SPDX-License-Identifier: MIT
cask "brisel" do
  version "1.0.0"
  sha256 "0000000000000000000000000000000000000000000000000000000000000000"

  url "https://brisel.example/downloads/Brisel-#{version}.dmg"
  name "Brisel"
  desc "Mount NTFS volumes read-write"
  homepage "https://brisel.example/"

  depends_on macos: :big_sur

  app "Brisel.app"

  uninstall launchctl: "org.brisel.BriselHelper",
            quit:      "org.brisel.Brisel"

  # The mount folder may hold mounted volumes: remove it only if empty.
  zap trash: "~/Library/Preferences/org.brisel.Brisel.plist",
      rmdir: "~/.brisel"
end
