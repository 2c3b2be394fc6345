import QtQuick
import Keelhold

// The player's keys, one shortcut each, all without modifiers. The toolkit
// keeps them from firing while a text field or a modal dialog has the keys;
// what each key does is decided in C++, one turn after the key event.
Item {
    id: keys
    property QtObject state: null
    property string eventID: ""
    property bool active: true
    property QtObject drivingData: null
    PlayerKeyboardShortcutsRouter { id: router; appState: keys.state; eventID: keys.eventID; drivingData: keys.drivingData }
    Repeater {
        model: router.keys
        delegate: Item {
            required property string modelData
            Shortcut {
                sequence: modelData
                context: Qt.WindowShortcut
                enabled: keys.active
                autoRepeat: true
                onActivated: router.activate(modelData)
            }
        }
    }
}
