// SPDX-License-Identifier: MIT
pragma Singleton

import QtQuick

/*! Colours, type and files that the pages share. All sizes are those of the 1280 × 720 design. */
QtObject {
    id: _theme

    /*! Cleared while pictures are taken, so that each shows a state at rest. */
    property bool isAnimated: true

    readonly property color background: "#0d121a"
    readonly property color panel: "#141b26"
    readonly property color surface: "#1c2533"
    readonly property color raised: "#2a3648"
    readonly property color outline: "#3d4c63"
    readonly property color text: "#f3f6fb"
    readonly property color secondaryText: "#aebbcd"
    readonly property color disabledText: "#8593a8"
    readonly property color accent: "#ffc247"
    readonly property color ink: "#14181f"
    readonly property color positive: "#1b6b5f"
    readonly property color mint: "#7fe3c4"
    readonly property color rose: "#ff9aa8"
    readonly property list<color> palette: [
        text, accent, mint, rose, positive, raised, outline, ink, "#80ffffff", "#00000000"
    ]

    readonly property font display: sizedFont(40, Font.Bold)
    readonly property font heading: sizedFont(26, Font.Bold)
    readonly property font label: sizedFont(22, Font.DemiBold)
    readonly property font menu: sizedFont(20, Font.DemiBold)
    readonly property font body: sizedFont(20, Font.Normal)
    readonly property font caption: sizedFont(18, Font.Normal)
    readonly property font hint: sizedFont(16, Font.DemiBold)
    readonly property font field: controlFont(22, Font.Normal)
    readonly property font key: controlFont(24, Font.DemiBold)
    readonly property font smallKey: controlFont(20, Font.DemiBold)
    readonly property font code: Qt.font({ family: "DejaVu Sans Mono", pixelSize: 16 })

    readonly property var buttonBackgrounds: ({
        disabled: "#161d28", checked: positive, focused: accent, normal: raised
    })
    readonly property var buttonTitles: ({
        disabled: disabledText, checked: "#ffffff", focused: ink, normal: text
    })
    readonly property var buttonSubtitles: ({
        disabled: disabledText, checked: "#d8efe9", focused: "#3a3215", normal: secondaryText
    })
    readonly property var menuBackgrounds: ({
        disabled: panel, checked: raised, focused: accent, normal: panel
    })
    readonly property var menuTitles: ({
        disabled: disabledText, checked: accent, focused: ink, normal: secondaryText
    })
    readonly property var fieldBackgrounds: ({ selected: text, normal: surface })
    readonly property var fieldTexts: ({ selected: ink, normal: text, wide: text })
    readonly property var fieldPlaceholders: ({ selected: "#566176", normal: disabledText })

    function sizedFont(pixelSize: int, weight: int): font {
        return Qt.font({ pixelSize: pixelSize, weight: weight });
    }

    /*! Controls that are told no family take that of the platform, not that of the application. */
    function controlFont(pixelSize: int, weight: int): font {
        return Qt.font({ family: Application.font.family, pixelSize: pixelSize, weight: weight });
    }

    function icon(name: string): string {
        return Qt.resolvedUrl("../assets/icons/" + name + ".svg");
    }

    function picture(name: string): string {
        return Qt.resolvedUrl("../assets/pictures/" + name + ".svg");
    }
}
