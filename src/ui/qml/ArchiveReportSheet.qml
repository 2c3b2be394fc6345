import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// What a keep did: its heading and up to three lines, then Done.
ColumnLayout {
    id: sheet
    objectName: "archiveReportSheet"
    signal done()
    spacing: 14
    RowLayout {
        spacing: 10
        UrlIcon { source: vault.report.headingIcon || ""; size: 28; color: palette.highlight }
        Label { objectName: "reportHeading"; text: vault.report.heading || ""; font.pixelSize: 20; font.weight: Font.DemiBold }
    }
    Repeater {
        model: vault.report.lines || []
        delegate: RowLayout {
            objectName: "reportLine"
            Layout.fillWidth: true
            spacing: 10
            UrlIcon { source: modelData.icon; size: 18; Layout.alignment: Qt.AlignTop }
            Label { text: modelData.text; wrapMode: Text.WordWrap; Layout.fillWidth: true }
        }
    }
    // After the first keep from a drive, once: it may keep itself from now on.
    ColumnLayout {
        objectName: "autoKeepOffer"
        visible: vault.autoKeep.offer === true
        Layout.fillWidth: true
        spacing: 2
        CheckBox {
            id: offerOn
            objectName: "autoKeepOfferOn"
            text: vault.autoKeep.label || ""
            Layout.fillWidth: true
            contentItem: Label { text: offerOn.text; wrapMode: Text.WordWrap; leftPadding: offerOn.indicator.width + offerOn.spacing; verticalAlignment: Text.AlignVCenter }
        }
        CheckBox {
            id: offerRecent
            objectName: "autoKeepOfferRecent"
            text: vault.autoKeep.recentLabel || ""
            enabled: offerOn.checked
            Layout.leftMargin: 24
        }
    }
    Item { implicitHeight: 4 }
    Button {
        objectName: "reportDone"
        Layout.alignment: Qt.AlignRight
        text: vault.texts.done
        highlighted: true
        onClicked: {
            if (vault.autoKeep.offer === true)
                vault.answerAutoKeepOffer(offerOn.checked, offerOn.checked && offerRecent.checked)
            sheet.done()
        }
    }
}
