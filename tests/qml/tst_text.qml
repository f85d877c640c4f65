// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    width: 500
    height: 300

    Component {
        id: _component

        KELUIQCG.Text {
            font {
                family: "DejaVu Sans"
                pixelSize: 20
            }
        }
    }

    Component {
        id: _wrapComponent

        KELUIQCG.Text {
            property list<int> modes: [KELUIQCG.Text.NoWrap, KELUIQCG.Text.WordWrap, KELUIQCG.Text.WrapAnywhere,
                KELUIQCG.Text.WrapAtWordBoundaryOrAnywhere, KELUIQCG.Text.Wrap]
            property list<int> scopedModes: [KELUIQCG.Text.WrapMode.NoWrap, KELUIQCG.Text.WrapMode.WordWrap,
                KELUIQCG.Text.WrapMode.WrapAnywhere, KELUIQCG.Text.WrapMode.WrapAtWordBoundaryOrAnywhere,
                KELUIQCG.Text.WrapMode.Wrap]

            wrapMode: KELUIQCG.Text.WrapMode.WordWrap
        }
    }

    Component {
        id: _unscopedWrapComponent

        KELUIQCG.Text {
            wrapMode: KELUIQCG.Text.WrapAnywhere
        }
    }

    Component {
        id: _declaredWidthComponent

        KELUIQCG.Text {
            property int changes: 0

            text: "Several words of a text"
            textWidth: 77
            onTextWidthChanged: ++changes
        }
    }

    Component {
        id: _boundAlignmentComponent

        KELUIQCG.Text {
            property int alignment: Qt.AlignHCenter | Qt.AlignVCenter

            horizontalAlignment: alignment
            verticalAlignment: alignment
        }
    }

    // The text is as wide as its own lines ask for, and breaks its lines in that width.
    Component {
        id: _looseComponent

        KELUIQCG.Text {
            width: implicitWidth
            textWidth: width
            font.family: "DejaVu Sans"
        }
    }

    Component {
        id: _rowComponent

        RowLayout {
            property alias label: _rowText

            Item {
                Layout.preferredWidth: 20
                Layout.preferredHeight: 20
            }
            KELUIQCG.Text {
                id: _rowText

                Layout.fillWidth: true
                textWidth: width
                font.family: "DejaVu Sans"
            }
        }
    }

    Component {
        id: _columnComponent

        ColumnLayout {
            property alias label: _columnText

            KELUIQCG.Text {
                id: _columnText

                Layout.maximumWidth: 200
                textWidth: width
                font.family: "DejaVu Sans"
            }
            Item {
                Layout.preferredWidth: 20
                Layout.preferredHeight: 20
            }
        }
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        name: "Text"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties, component) {
            const text = createTemporaryObject(component ?? _component, _scene, properties ?? {});
            verify(text);
            return text;
        }

        function spy(target, signalName) {
            return createTemporaryObject(_spyComponent, _test, { target, signalName });
        }

        function test_defaults() {
            const text = create();
            compare(text.text, "");
            compare(text.color, "#000000");
            compare(text.horizontalAlignment, Qt.AlignLeft);
            compare(text.verticalAlignment, Qt.AlignTop);
            compare(text.wrapMode, KELUIQCG.Text.NoWrap);
            compare(text.maximumLineCount, 2147483647);
            compare(text.textWidth, 0);
            compare(text.implicitWidth, 0);
            compare(text.implicitHeight, 0);
        }

        function test_wrapModeNames() {
            const text = create({}, _wrapComponent);
            compare(Array.from(text.modes), [0, 1, 3, 4, 4]);
            compare(Array.from(text.scopedModes), [0, 1, 3, 4, 4]);
            compare(text.wrapMode, 1);
            compare(create({}, _unscopedWrapComponent).wrapMode, 3);
        }

        function test_declaredTextWidthIsReplacedAtCompletion_data() {
            return [
                { tag: "no width", properties: {}, textWidth: 0 },
                { tag: "width", properties: { width: 120 }, textWidth: 120 },
                { tag: "part of a pixel", properties: { width: 120.9 }, textWidth: 120 },
                { tag: "given at creation", properties: { textWidth: 55, width: 90 }, textWidth: 90 },
            ];
        }

        function test_declaredTextWidthIsReplacedAtCompletion(data) {
            const text = create(data.properties, _declaredWidthComponent);
            compare(text.textWidth, data.textWidth);
            // Once for the declaration, never for the replacement.
            const changes = text.changes;
            verify(changes <= 2, changes);
            text.textWidth = data.textWidth;
            compare(text.changes, changes);
        }

        function test_withoutWidthAllIsOnOneLine() {
            const text = create({ text: "Several words of a text that would fill more than one line elsewhere" });
            const line = create({ text: "A" });
            compare(text.textWidth, 0);
            compare(text.implicitHeight, line.implicitHeight);
            verify(text.implicitWidth > 500);
            compare(text.width, text.implicitWidth);
            text.maximumLineCount = 1;
            compare(text.implicitHeight, line.implicitHeight);
            compare(text.width, text.implicitWidth);
        }

        function test_numberMaxValueReadsBackAsTheLargestInt() {
            const text = create({ text: "Several words", width: 60 });
            const spy = this.spy(text, "textWidthChanged");
            for (let times = 1; times <= 2; ++times) {
                text.textWidth = KELUIQCG.KelGlobal.numberMaxValue;
                compare(text.textWidth, 2147483647);
                compare(spy.count, times);
                compare(spy.signalArguments[times - 1][0], KELUIQCG.KelGlobal.numberMaxValue);
            }
            compare(text.implicitWidth, create({ text: "Several words" }).implicitWidth);
        }

        function test_resizingDoesNotChangeTextWidth() {
            const text = create({ text: "Several words of a text", width: 90 });
            const height = text.implicitHeight;
            text.width = 400;
            compare(text.textWidth, 90);
            compare(text.implicitHeight, height);
        }

        function test_fontChangeKeepsImplicitSize() {
            const text = create({ text: "Title" });
            const width = text.implicitWidth;
            text.font.pixelSize = 40;
            compare(text.implicitWidth, width);
            text.text = "Title ";
            verify(text.implicitWidth > 1.5 * width);
        }

        function test_oneAlignmentServesBothProperties() {
            const text = create({}, _boundAlignmentComponent);
            const spies = [spy(text, "horizontalAlignmentChanged"), spy(text, "verticalAlignmentChanged")];
            compare(text.horizontalAlignment & Qt.AlignHCenter, Qt.AlignHCenter);
            compare(text.verticalAlignment & Qt.AlignVCenter, Qt.AlignVCenter);
            text.alignment = Qt.AlignRight | Qt.AlignBottom;
            compare(spies.map(spy => spy.count), [1, 1]);
            verify(text.horizontalAlignment & Qt.AlignRight);
            verify(text.verticalAlignment & Qt.AlignBottom);
        }

        function test_widthOfItsOwnIsAFixedPoint_data() {
            const texts = ["", "A", "Title", "Several words of a text, fjord.", "Слова: ещё слово",
                           "One\nlonger line\n", "שלום עולם", "ends in a space "];
            const rows = [];
            for (const text of texts) {
                for (const pixelSize of [9, 20, 33]) {
                    for (const italic of [false, true])
                        rows.push({ tag: JSON.stringify(text) + ", " + pixelSize + (italic ? " italic" : ""), text,
                                    font: Qt.font({ family: "DejaVu Sans", pixelSize, italic }) });
                }
            }
            return rows;
        }

        function test_widthOfItsOwnIsAFixedPoint(data) {
            const text = create({ text: data.text, font: data.font }, _looseComponent);
            const natural = create({ text: data.text, font: data.font });
            compare(text.implicitWidth, natural.implicitWidth);
            compare(text.implicitHeight, natural.implicitHeight);
            compare(text.width, text.implicitWidth);
            const spy = this.spy(text, "implicitWidthChanged");
            for (let times = 0; times < 3; ++times) {
                text.textWidth = text.implicitWidth;
                text.wrapMode = text.wrapMode === KELUIQCG.Text.Wrap ? KELUIQCG.Text.NoWrap : KELUIQCG.Text.Wrap;
            }
            compare(spy.count, 0);
            compare(text.implicitHeight, natural.implicitHeight);
        }

        function test_layoutsSettle_data() {
            const texts = ["", "Title", "Several words of a text that is wider than its layout", "Шёл\nснег"];
            const rows = [];
            for (const layout of ["row", "column"]) {
                for (const text of texts) {
                    for (const maximumLineCount of [1, 2, 100]) {
                        const tag = [layout, JSON.stringify(text), maximumLineCount].join(", ");
                        rows.push({ tag, layout, text, maximumLineCount });
                    }
                }
            }
            return rows;
        }

        function test_layoutsSettle(data) {
            const layout = create({}, data.layout === "row" ? _rowComponent : _columnComponent);
            const text = layout.label;
            text.maximumLineCount = data.maximumLineCount;
            text.text = data.text;
            waitForRendering(layout);
            tryVerify(() => !isPolishScheduled(layout));
            const size = [text.width, text.implicitWidth, text.implicitHeight, text.textWidth];
            const spies = [spy(text, "implicitWidthChanged"), spy(text, "widthChanged"),
                           spy(text, "textWidthChanged")];
            for (let times = 0; times < 3; ++times) {
                text.wrapMode = text.wrapMode === KELUIQCG.Text.Wrap ? KELUIQCG.Text.NoWrap : KELUIQCG.Text.Wrap;
                tryVerify(() => !isPolishScheduled(layout));
            }
            compare(spies.map(spy => spy.count), [0, 0, 0]);
            compare([text.width, text.implicitWidth, text.implicitHeight, text.textWidth], size);
            verify(data.text === "" || text.implicitHeight > 0);
        }

        function test_extremeFonts_data() {
            return [
                { tag: "one pixel", pixelSize: 1 },
                { tag: "large", pixelSize: 1000 },
                { tag: "huge", pixelSize: 10000 },
            ];
        }

        function test_extremeFonts(data) {
            const text = create({ text: "Title", width: 300, height: 100 });
            text.font.pixelSize = data.pixelSize;
            text.text = "Tiger";
            waitForRendering(text);
            verify(text.implicitWidth <= 300);
            verify(text.implicitHeight >= data.pixelSize);
            text.textWidth = 0;
            waitForRendering(text);
            verify(text.implicitWidth >= data.pixelSize, text.implicitWidth);
        }

        function test_pixelSizeZeroShowsText() {
            const text = create({ text: "Title" });
            text.font.pixelSize = 0;
            text.text = "Other";
            waitForRendering(text);
            verify(text.implicitWidth > 0, text.font.pixelSize);
        }

        function test_longText_data() {
            return [
                { tag: "one line", part: "word ", maximumLineCount: 1, width: 300 },
                { tag: "two lines", part: "word ", maximumLineCount: 2, width: 300 },
                { tag: "one word", part: "word", maximumLineCount: 3, width: 300 },
                { tag: "many lines", part: "word\n", maximumLineCount: 3, width: 300 },
                { tag: "no width", part: "word ", maximumLineCount: 1, width: 0 },
            ];
        }

        function test_longText(data) {
            const megabytes10 = data.part.repeat(10 * 1024 * 1024 / data.part.length);
            const text = create({ width: data.width, maximumLineCount: data.maximumLineCount });
            text.text = megabytes10;
            compare(text.text.length, megabytes10.length);
            verify(text.implicitWidth > 0 && text.implicitHeight > 0);
            verify(text.implicitHeight <= 100);
            waitForRendering(text);
        }

        function test_strangeCharacters_data() {
            return [
                { tag: "NUL", text: "a\u0000b" },
                { tag: "high surrogate", text: "a\ud83d" },
                { tag: "low surrogate", text: "\ude00b" },
                { tag: "surrogates the wrong way round", text: "a\ude00\ud83db" },
                { tag: "noncharacter", text: "a\uffffb" },
                { tag: "markup", text: "<b>a</b> &amp;" },
            ];
        }

        function test_strangeCharacters(data) {
            const text = create({ text: data.text });
            compare(text.text, data.text);
            compare(text.text.length, data.text.length);
            waitForRendering(text);
            compare(text.implicitHeight, create({ text: "a" }).implicitHeight);
            verify(text.implicitWidth > create({ text: "a" }).implicitWidth / 2);
        }
    }
}
