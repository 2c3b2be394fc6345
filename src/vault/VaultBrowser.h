#pragma once

#include "model/TeslaEvent.h"

#include <QString>
#include <exception>
#include <vector>

// Reads a Vault folder back into playable events by walking its tree with
// the scanner's parsers. The folders are the truth for what can be played;
// manifest.json is not consulted.
namespace VaultBrowser {

class VaultBrowserError : public std::exception {
public:
    enum Case { vaultNotFound };
    explicit VaultBrowserError(Case c = vaultNotFound) : case_(c) {}
    Case errorCase() const { return case_; }
    const char *what() const noexcept override { return "The Vault folder could not be found."; }

private:
    Case case_;
};

// Newest first. Blocking; raises VaultBrowserError when url is not a folder.
std::vector<TeslaEvent> scanVault(const QString &url);

} // namespace VaultBrowser
