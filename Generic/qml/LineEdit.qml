// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as QQT
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

/*!
    A line of text, edited from outside: by the keys of a Keyboard, connected to the functions, and by the
    digits of the remote. A map of state colours is an object with the keys "normal" and "selected"; every
    map must be set.
*/
QQT.Control {
    id: _lineEdit

    /*! The text, however masked or hidden. */
    property alias text: _input.text
    /*! Shown while the text is empty. */
    property string placeholderText

    /*! Set by the application's own focus logic: digits of the remote may arrive, and no error is shown. */
    property bool focused
    /*! Whether the text is being edited: the cursor is shown, and keys take effect. */
    property bool selected
    /*! Frame the field, unless focused. */
    property bool error

    /*! Corner radius in pixels, handed to the background, which draws square corners all the same. */
    property real roundingRadius: 15
    /*! State colours of the background. */
    property var backgroundColors
    /*! State colours of the text, and "wide" for the letter inside the wide cursor. */
    property var textColors
    /*! State colours of the placeholder, and of the text while the field is disabled. */
    property var placeholderTextColors
    /*! Pixels; the frame lies outside the field. */
    property int errorFrameWidth
    property color errorFrameColor: "transparent"

    /*! Qt.AlignLeft, Qt.AlignHCenter or Qt.AlignRight, of text and placeholder. */
    property int horizontalAlignment: Qt.AlignLeft
    /*! Qt.AlignTop, Qt.AlignVCenter or Qt.AlignBottom, of text and placeholder. */
    property int verticalAlignment: Qt.AlignVCenter
    /*! Width of the bar cursor in pixels. */
    property int cursorWidth: 2
    /*! A TextInput.EchoMode. */
    property int echoMode: TextInput.Normal
    /*! As TextInput's; with a mask, digits are typed at once in every layout. */
    property string inputMask
    /*!
        The layout of the keyboard, kept equal by the application. While it shows letters, a digit stays
        under the cursor for a second, in which the next one replaces it.
    */
    property int keyboardLayout: KELUIQCG.KelGlobal.NumericLayout
    /*! For the application's use; has no effect here. */
    property bool keyboardCapslockEnabled
    property alias cursorPosition: _input.cursorPosition

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)

    Keys.enabled: selected || focused
    Keys.forwardTo: [_input]

    background: KELUIQCG.Rectangle {
        id: _background

        roundingRadius: _lineEdit.roundingRadius
        color: _lineEdit.stateColor(_lineEdit.backgroundColors)

        KELUIQCG.Rectangle {
            anchors.fill: parent
            anchors.margins: -_lineEdit.errorFrameWidth
            roundingRadius: _lineEdit.roundingRadius + _lineEdit.errorFrameWidth
            visible: _lineEdit.error && !_lineEdit.focused
            color: "transparent"
            border.width: _lineEdit.errorFrameWidth
            border.color: _lineEdit.errorFrameColor
        }
    }

    contentItem: TextInput {
        id: _input

        /*! The digit under the wide cursor, empty for none. It stands behind the cursor. */
        property string cursorLetter

        clip: true
        activeFocusOnPress: false
        // Enough for any line, and for nobody to wait.
        maximumLength: 1048576
        horizontalAlignment: _lineEdit.horizontalAlignment
        verticalAlignment: _lineEdit.verticalAlignment
        font: _lineEdit.font
        color: _lineEdit.stateColor(enabled ? _lineEdit.textColors : _lineEdit.placeholderTextColors)
        echoMode: _lineEdit.echoMode
        inputMask: _lineEdit.inputMask
        cursorVisible: _lineEdit.selected

        cursorDelegate: KELUIQCG.Rectangle {
            id: _cursor

            readonly property bool isWide: _input.cursorLetter !== ""

            width: isWide ? _metrics.width + 2 : _lineEdit.cursorWidth
            color: _input.color
            visible: false

            // The input puts the cursor on cursorRectangle each time, whatever is bound here.
            onXChanged: place()
            onIsWideChanged: {
                place();
                visible = visible || (isWide && _lineEdit.selected);
            }

            function place() {
                x = _input.cursorRectangle.x - (isWide ? 1 : 0);
            }

            Text {
                anchors.fill: parent
                horizontalAlignment: Text.AlignHCenter
                font: _input.font
                color: _lineEdit.textColors["wide"]
                text: _input.cursorLetter
            }

            TextMetrics {
                id: _metrics

                font: _input.font
                text: _input.cursorLetter
            }

            Timer {
                interval: 500
                repeat: true
                running: _lineEdit.selected

                onTriggered: _cursor.visible = !_cursor.visible || _cursor.isWide
                onRunningChanged: _cursor.visible = running
            }
        }

        Keys.onPressed: event => {
            if (event.key < Qt.Key_0 || event.key > Qt.Key_9)
                return;
            if (_lineEdit.selected)
                _lineEdit.processLetterInput(event);
            else
                event.accepted = true;
        }

        // On the line, and from the point, where typed text will stand; where that is, the input tells only of
        // text that it has.
        KELUIQCG.Text {
            id: _placeholder

            readonly property real slack: Math.max(0, _input.width - _placeholderMetrics.advanceWidth)

            x: _input.effectiveHorizontalAlignment === TextInput.AlignRight ? slack
               : _input.effectiveHorizontalAlignment === TextInput.AlignHCenter ? slack / 2 : 0
            y: _input.cursorRectangle.y
            width: _input.width
            textWidth: _input.width
            horizontalAlignment: Qt.AlignLeft | Qt.AlignAbsolute
            maximumLineCount: 1
            visible: _input.text === ""
            font: _lineEdit.font
            color: _lineEdit.stateColor(_lineEdit.placeholderTextColors)
            text: _lineEdit.placeholderText

            // The label takes note of a font with the next change that moves lines.
            onFontChanged: {
                maximumLineCount = 2;
                maximumLineCount = 1;
            }
        }

        TextMetrics {
            id: _placeholderMetrics

            font: _lineEdit.font
            text: _lineEdit.placeholderText
        }

        Timer {
            id: _letterTimer

            interval: 1000

            onTriggered: {
                _input.cursorLetter = "";
                ++_input.cursorPosition;
            }
        }
    }

    Component {
        id: _maskTwin

        TextInput {}
    }

    QtObject {
        id: _private

        /*!
            Where the cursor belongs once text was inserted into the masked input, which leaves it where it
            was. An empty twin tells: there, what is not blank is new. Its blank is a character that nobody
            types.
        */
        function maskedEnd(text: string): int {
            const start = _input.cursorPosition;
            const [mask, blanks] = _input.inputMask.split(";");
            const twinBlank = "\uE000";
            const twin = _maskTwin.createObject(null, { inputMask: mask + ";" + twinBlank }) as TextInput;
            const blank = twin.displayText;
            twin.insert(start, text.split(blanks ? blanks.charAt(0) : " ").join(twinBlank));
            const filled = twin.displayText;
            twin.destroy();
            let end = filled.length;
            while (end > start && filled.charAt(end - 1) === blank.charAt(end - 1))
                --end;
            return end;
        }

        // A character beyond the basic plane is two units of text, which do not stand alone.
        function unitsAt(position: int): int {
            return isHalf(position) && isHalf(position + 1) ? 2 : 1;
        }

        function isHalf(position: int): bool {
            const unit = _input.getText(position, position + 1);
            return unit > "\ud7ff" && unit < "\ue000";
        }
    }

    /*! The colour of a map for the state that the field is in. */
    function stateColor(colors: var): color {
        return selected ? colors["selected"] : colors["normal"];
    }

    /*! Types text at the cursor, while selected. */
    function addText(text: string) {
        if (!selected)
            return;
        const maskedEnd = inputMask === "" ? -1 : _private.maskedEnd(text);
        _input.insert(cursorPosition, text);
        if (maskedEnd >= 0)
            cursorPosition = maskedEnd;
    }

    /*! Deletes the character before the cursor, while selected. */
    function delCurrentSymbol() {
        if (!selected || cursorPosition === 0)
            return;
        const units = _private.unitsAt(cursorPosition - 2);
        // Through a mask, this steps over fixed characters; there, removing moves no cursor.
        cursorPosition -= units;
        _input.remove(cursorPosition, cursorPosition + units);
    }

    function moveCursorToLeft() {
        if (selected && cursorPosition > 0)
            cursorPosition -= _private.unitsAt(cursorPosition - 2);
    }

    function moveCursorToRight() {
        // At the end of the text the input itself ignores the step.
        if (selected && text !== "" && cursorPosition <= text.length)
            cursorPosition += _private.unitsAt(cursorPosition);
    }

    /*! Enters a digit of the remote by the rule that keyboardLayout tells of. */
    function processLetterInput(event: var) {
        if (inputMask !== "" || keyboardLayout === KELUIQCG.KelGlobal.NumericLayout
                || keyboardLayout === KELUIQCG.KelGlobal.SymbolsLayout)
            return;
        event.accepted = true;
        if (event.text === "")
            return;
        if (_letterTimer.running)
            _input.remove(cursorPosition, cursorPosition + 1);
        _input.insert(cursorPosition, event.text);
        --cursorPosition;
        _input.cursorLetter = event.text;
        _letterTimer.restart();
    }
}
