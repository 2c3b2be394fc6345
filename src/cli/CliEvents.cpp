#include "cli/CliEvents.h"

#include "cli/CliOutput.h"
#include "drive/TeslaCamParser.h"
#include "vault/VaultBrowser.h"


namespace CliEvents {

Found find(const QString &root, const QString &id, QString *error)
{
    Found found;
    try {
        for (const TeslaEvent &e : TeslaCamParser::scan(root).events)
            if (e.id() == id) {
                found.event = e;
                return found;
            }
        for (const TeslaEvent &e : VaultBrowser::scanVault(root))
            if (e.id() == id) {
                found.event = e;
                found.vaultURL = root;
                return found;
            }
    } catch (const TeslaCamParser::ParserError &e) {
        *error = e.errorCase() == TeslaCamParser::ParserError::rootNotFound
            ? CliOutput::tr("There is no folder at \u201c%1\u201d. Check that the drive "
                                                          "is plugged in and the path is right.")
                  .arg(root)
            : CliOutput::tr("\u201c%1\u201d is a file, not a folder. Give the TeslaCam "
                                                          "folder itself.")
                  .arg(root);
        return found;
    } catch (const TeslaCamParser::ScanError &e) {
        *error = e.message();
        return found;
    } catch (const VaultBrowser::VaultBrowserError &) {
    }
    //: %1 is an event's id
    *error = CliOutput::tr("There is no event \u201c%1\u201d in this folder.").arg(id);
    return found;
}

QStringList cameraNames()
{
    QStringList names;
    for (const Camera c : Camera::allCases())
        names << c.rawValue();
    return names;
}

} // namespace CliEvents
