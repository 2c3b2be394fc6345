#pragma once

// The C++ types the screens create or name, registered under "Keelhold".
// The app and the UI tests call this once before loading any QML.
namespace QmlTypes {

void registerAll();

} // namespace QmlTypes
