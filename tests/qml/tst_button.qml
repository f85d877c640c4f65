// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Item {
    id: _scene

    readonly property string icon: Qt.resolvedUrl("data/icon.png")
    // A map for each element; no two colours are alike.
    readonly property var backgroundColors: map("1")
    readonly property var leftIconColors: map("2")
    readonly property var rightIconColors: map("3")
    readonly property var titleColors: map("4")
    readonly property var subtitleColors: map("5")

    width: 700
    height: 300

    function map(digit) {
        return { disabled: "#dd000" + digit, checked: "#cc000" + digit, focused: "#ff000" + digit,
                 normal: "#aa000" + digit };
    }

    Component {
        id: _component

        KELUIQCG.Button {
            backgroundColors: _scene.backgroundColors
            leftIconColors: _scene.leftIconColors
            rightIconColors: _scene.rightIconColors
            titleColors: _scene.titleColors
            subtitleColors: _scene.subtitleColors
        }
    }

    Component {
        id: _bareComponent

        KELUIQCG.Button {}
    }

    Component {
        id: _spyComponent

        SignalSpy {}
    }

    TestCase {
        id: _test

        readonly property string longText: "A title that is far too long for any button in these tests, and then some more"

        name: "Button"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties) {
            const button = createTemporaryObject(_component, _scene,
                                                 Object.assign({ fixedSize: Qt.size(300, 60) }, properties));
            verify(button);
            return button;
        }

        function parts(button) {
            const row = button.contentItem.children[0];
            const [leftIcon, textBlock, rightIcon] = row.children;
            const [title, subtitle] = textBlock.children;
            return { row, leftIcon, textBlock, rightIcon, title, subtitle, background: button.background };
        }

        function textWidths(button) {
            const { title, subtitle } = parts(button);
            return [title.width, title.textWidth, subtitle.width, subtitle.textWidth];
        }

        function spy(target, signalName) {
            return createTemporaryObject(_spyComponent, _test, { target, signalName });
        }

        function test_defaults_data() {
            return [
                { tag: "focused", value: false },
                { tag: "animateBackgroundColors", value: false },
                { tag: "animateTextColors", value: false },
                { tag: "backgroundColorsAnimationDuration", value: 125 },
                { tag: "backgroundColorsAnimationEasingType", value: Easing.Linear },
                { tag: "textColorsAnimationDuration", value: 125 },
                { tag: "textColorsAnimationEasingType", value: Easing.Linear },
                { tag: "roundingRadius", value: 15 },
                { tag: "leftIconSource", value: "" },
                { tag: "leftIconSize", value: Qt.size(-1, -1) },
                { tag: "leftIconColored", value: true },
                { tag: "rightIconSource", value: "" },
                { tag: "rightIconSize", value: Qt.size(-1, -1) },
                { tag: "rightIconColored", value: true },
                { tag: "textBlockLeftMargin", value: 0 },
                { tag: "textBlockTopMargin", value: 0 },
                { tag: "textBlockRightMargin", value: 0 },
                { tag: "textBlockBottomMargin", value: 0 },
                { tag: "textBlockSpacing", value: 10 },
                { tag: "titleText", value: "" },
                { tag: "titleFont", value: Application.font },
                { tag: "titleAlignment", value: 33 },
                { tag: "subtitleText", value: "" },
                { tag: "subtitleFont", value: Application.font },
                { tag: "subtitleAlignment", value: 66 },
                { tag: "isFixedWidth", value: true },
                { tag: "subtitle", value: "" },
                { tag: "leftPadding", value: 0 },
                { tag: "topPadding", value: 0 },
                { tag: "rightPadding", value: 0 },
                { tag: "bottomPadding", value: 0 },
                { tag: "spacing", value: 0 },
                { tag: "checkable", value: false },
                { tag: "checked", value: false },
                { tag: "text", value: "" },
            ];
        }

        function test_defaults(data) {
            compare(create()[data.tag], data.value);
        }

        function test_curvesAreStraightLinesByDefault() {
            const button = create();
            for (const name of ["background", "text"]) {
                const curve = button[name + "ColorsBezierAnimationInterpolator"];
                compare(Array.from(curve), [0, 0, 0, 0, 1, 1], name);
            }
        }

        function test_withoutASizeItsImplicitSizeIsMinusOne() {
            const button = createTemporaryObject(_component, _scene, { titleText: "Title" });
            compare(button.fixedSize, Qt.size(-1, -1));
            compare(button.implicitWidth, -1);
            compare(button.implicitHeight, -1);
        }

        function test_arrangement() {
            const button = create({ titleText: "Title", subtitleText: "Sub", spacing: 5,
                                    leftIconSource: _scene.icon, rightIconSource: _scene.icon,
                                    textBlockLeftMargin: 1, textBlockTopMargin: 2, textBlockRightMargin: 3,
                                    textBlockBottomMargin: 4, textBlockSpacing: 6 });
            const { row, leftIcon, textBlock, rightIcon, title, subtitle, background } = parts(button);
            compare(background.width, 300);
            compare(background.height, 60);
            compare(row.spacing, 5);
            compare(row.children.length, 3);
            compare([textBlock.leftPadding, textBlock.topPadding, textBlock.rightPadding, textBlock.bottomPadding],
                    [1, 2, 3, 4]);
            compare(textBlock.spacing, 6);
            compare(textBlock.width, title.width);
            tryCompare(leftIcon, "x", 0);
            tryCompare(textBlock, "x", 24 + 5);
            tryCompare(rightIcon, "x", 24 + 5 + textBlock.width + 5);
            fuzzyCompare(row.x + row.width / 2, 150, 0.5);
            fuzzyCompare(row.y + row.height / 2, 30, 0.5);
            for (const item of [leftIcon, textBlock, rightIcon])
                fuzzyCompare(item.y + item.height / 2, row.height / 2, 0.5);
            tryCompare(title, "x", 1);
            tryCompare(title, "y", 2);
            tryCompare(subtitle, "y", 2 + title.height + 6);
        }

        function test_textBlockFollowsItsMargins() {
            const button = create({ titleText: "Title" });
            const { textBlock } = parts(button);
            button.textBlockLeftMargin = 1;
            button.textBlockTopMargin = 2;
            button.textBlockRightMargin = 3;
            button.textBlockBottomMargin = 4;
            compare([textBlock.leftPadding, textBlock.topPadding, textBlock.rightPadding, textBlock.bottomPadding],
                    [1, 2, 3, 4]);
        }

        function test_paddingOfAllSidesHasNoEffect() {
            const button = create({ padding: 10, horizontalPadding: 10 });
            compare([button.leftPadding, button.topPadding, button.rightPadding, button.bottomPadding], [0, 0, 0, 0]);
        }

        function test_textsFollowTheirProperties() {
            const button = create({ titleText: "Title", subtitleText: "Sub",
                                    titleFont: Qt.font({ family: "DejaVu Sans", pixelSize: 20 }),
                                    subtitleFont: Qt.font({ family: "DejaVu Sans", pixelSize: 12 }) });
            const { title, subtitle } = parts(button);
            compare(title.text, "Title");
            compare(subtitle.text, "Sub");
            compare(title.font.pixelSize, 20);
            compare(subtitle.font.pixelSize, 12);
            compare(title.maximumLineCount, 1);
            compare(subtitle.maximumLineCount, 1);
            compare(button.text, "Title");
            compare(button.subtitle, "Sub");
            button.titleText = "Other";
            button.subtitleText = "Below";
            compare(button.text, "Other");
            compare(button.subtitle, "Below");
        }

        function alignments(button) {
            const { title, subtitle } = parts(button);
            return [title.horizontalAlignment, title.verticalAlignment,
                    subtitle.horizontalAlignment, subtitle.verticalAlignment];
        }

        function test_alignment_data() {
            const rows = [];
            for (const horizontal of [Qt.AlignLeft, Qt.AlignHCenter, Qt.AlignRight]) {
                for (const vertical of [Qt.AlignTop, Qt.AlignVCenter, Qt.AlignBottom])
                    rows.push({ tag: `${horizontal} ${vertical}`, horizontal, vertical });
            }
            return rows;
        }

        function test_alignment({ horizontal, vertical }) {
            const button = create();
            compare(alignments(button), [Qt.AlignLeft, Qt.AlignTop, Qt.AlignRight, Qt.AlignBottom]);
            button.titleAlignment = horizontal | vertical;
            compare(alignments(button), [horizontal, vertical, Qt.AlignRight, Qt.AlignBottom]);
            button.subtitleAlignment = horizontal | vertical;
            compare(alignments(button), [horizontal, vertical, horizontal, vertical]);
            const other = create({ titleAlignment: horizontal | vertical, subtitleAlignment: horizontal | vertical });
            compare(alignments(other), [horizontal, vertical, horizontal, vertical]);
        }

        function test_emptyTextsAreHidden() {
            const button = create();
            const { title, subtitle } = parts(button);
            compare(title.visible, false);
            compare(subtitle.visible, false);
            button.titleText = "Title";
            compare(title.visible, true);
            button.subtitleText = "Sub";
            compare(subtitle.visible, true);
            button.titleText = "";
            compare(title.visible, false);
            button.subtitleText = "";
            compare(subtitle.visible, false);
        }

        function test_subtitleIsReadOnly() {
            const button = create();
            try {
                button.subtitle = "x";
                fail();
            } catch (error) {
                verify(error instanceof TypeError, error);
            }
        }

        function test_clickDoesNotCheck() {
            const button = create();
            const clicked = spy(button, "clicked");
            mouseClick(button);
            compare(clicked.count, 1);
            compare(button.checked, false);
        }

        function test_cornersStaySquareWhateverTheRadius() {
            const button = create({ roundingRadius: 25 });
            const { background } = parts(button);
            compare(background.roundingRadius, 25);
            compare(background.forceRounding, false);
            compare(background.radius, 0);
            const picture = grabImage(button);
            for (const [x, y] of [[0, 0], [299, 0], [0, 59], [299, 59], [150, 30]])
                compare(picture.pixel(x, y), "#aa0001");
        }

        function test_stateColors_data() {
            const rows = [];
            for (const enabled of [true, false]) {
                for (const checked of [false, true]) {
                    for (const focused of [false, true]) {
                        rows.push({
                            tag: [enabled ? "enabled" : "disabled", checked ? "checked" : "unchecked",
                                  focused ? "focused" : "not focused"].join(", "),
                            enabled, checked, focused,
                            key: !enabled ? "disabled" : checked ? "checked" : focused ? "focused" : "normal",
                        });
                    }
                }
            }
            return rows;
        }

        function test_stateColors(data) {
            const states = { enabled: data.enabled, checked: data.checked, focused: data.focused };
            const created = create(Object.assign({ titleText: "Title", subtitleText: "Sub" }, states));
            const changed = create({ titleText: "Title", subtitleText: "Sub" });
            for (const name in states)
                changed[name] = states[name];
            for (const button of [created, changed]) {
                const { background, leftIcon, rightIcon, title, subtitle } = parts(button);
                compare(background.color, _scene.backgroundColors[data.key]);
                compare(leftIcon.iconColor, _scene.leftIconColors[data.key]);
                compare(rightIcon.iconColor, _scene.rightIconColors[data.key]);
                compare(title.color, _scene.titleColors[data.key]);
                compare(subtitle.color, _scene.subtitleColors[data.key]);
                compare(button.stateColor({ [data.key]: "#123456" }), "#123456");
            }
        }

        function test_iconsShowTheStateColor() {
            const button = create({ leftIconSource: _scene.icon, rightIconSource: _scene.icon });
            tryCompare(parts(button).rightIcon, "x", 24);
            let picture = grabImage(button);
            compare(picture.pixel(138, 30), "#aa0002");
            compare(picture.pixel(162, 30), "#aa0003");
            button.focused = true;
            picture = grabImage(button);
            compare(picture.pixel(138, 30), "#ff0002");
            compare(picture.pixel(162, 30), "#ff0003");
            compare(picture.pixel(10, 30), "#ff0001");
        }

        function test_coloredFlagsHaveNoEffect() {
            const button = create({ leftIconColored: false, rightIconColored: false });
            compare(parts(button).leftIcon.iconColor, "#aa0002");
            compare(parts(button).rightIcon.iconColor, "#aa0003");
        }

        function test_unsetMapsWarnAndKeepTheColor() {
            // For each of the five elements, the failed look-up and the colour that never came of it.
            for (let warning = 0; warning < 10; ++warning)
                ignoreWarning(/TypeError: .*undefined|Could not find any constructor for value type .*undefined/);
            const bare = createTemporaryObject(_bareComponent, _scene, { fixedSize: Qt.size(300, 60) });
            verify(bare);

            const button = create({ titleText: "Title" });
            for (let warning = 0; warning < 4; ++warning)
                ignoreWarning(/TypeError: .*undefined|Could not find any constructor for value type .*undefined/);
            button.titleColors = undefined;
            button.backgroundColors = undefined;
            compare(parts(button).title.color, "#aa0004");
            compare(parts(button).background.color, "#aa0001");
        }

        function test_iconSizes_data() {
            return [
                { tag: "from the file", size: Qt.size(-1, -1), width: 24, height: 16 },
                { tag: "zero is none", size: Qt.size(0, 0), width: 24, height: 16 },
                { tag: "both", size: Qt.size(40, 30), width: 40, height: 30 },
                { tag: "width only", size: Qt.size(40, 0), width: 40, height: 16 },
                { tag: "height only", size: Qt.size(-5, 30), width: 24, height: 30 },
            ];
        }

        function test_iconSizes(data) {
            const button = create({ leftIconSource: _scene.icon, rightIconSource: _scene.icon,
                                    leftIconSize: data.size });
            const { leftIcon, rightIcon } = parts(button);
            compare([leftIcon.width, leftIcon.height], [data.width, data.height]);
            compare([rightIcon.width, rightIcon.height], [24, 16]);
            button.leftIconSize = Qt.size(-1, -1);
            button.rightIconSize = data.size;
            compare([leftIcon.width, leftIcon.height], [24, 16]);
            compare([rightIcon.width, rightIcon.height], [data.width, data.height]);
        }

        function test_emptyIconsStayVisible() {
            const button = create({ titleText: longText, spacing: 7 });
            const { leftIcon, rightIcon, title } = parts(button);
            compare(leftIcon.visible, true);
            compare(rightIcon.visible, true);
            compare(leftIcon.width, 0);
            compare(rightIcon.width, 0);
            compare(title.width, 300 - 2 * 7);
        }

        function test_room_data() {
            const icon = _scene.icon;
            return [
                { tag: "nothing beside the text", properties: {}, room: 300 },
                { tag: "left padding counts twice", properties: { leftPadding: 20 }, room: 260 },
                { tag: "right padding does not count", properties: { rightPadding: 50 }, room: 300 },
                { tag: "unequal paddings", properties: { leftPadding: 10, rightPadding: 45 }, room: 280 },
                { tag: "text block margins do not count",
                  properties: { textBlockLeftMargin: 11, textBlockRightMargin: 13 }, room: 300 },
                { tag: "spacing beside both empty icons", properties: { spacing: 9 }, room: 282 },
                { tag: "left icon", properties: { leftIconSource: icon }, room: 276 },
                { tag: "right icon", properties: { rightIconSource: icon }, room: 276 },
                { tag: "icons and spacing",
                  properties: { leftIconSource: icon, rightIconSource: icon, spacing: 5 }, room: 242 },
                { tag: "sized icons",
                  properties: { leftIconSource: icon, leftIconSize: Qt.size(30, 30), rightIconSource: icon,
                                rightIconSize: Qt.size(41, 0) }, room: 229 },
                { tag: "sized empty icons",
                  properties: { leftIconSize: Qt.size(30, 30), rightIconSize: Qt.size(40, 40) }, room: 230 },
                { tag: "all",
                  properties: { leftPadding: 8, rightPadding: 99, spacing: 3, leftIconSource: icon,
                                leftIconSize: Qt.size(30, 30), rightIconSource: icon, textBlockLeftMargin: 17,
                                textBlockRightMargin: 19 }, room: 300 - 16 - 33 - 27 },
                { tag: "negative", properties: { leftPadding: 200 }, room: -100 },
            ];
        }

        function test_room(data) {
            const properties = Object.assign({ titleText: longText, subtitleText: "Sub" }, data.properties);
            const button = create(properties);
            compare(textWidths(button), Array(4).fill(data.room));
            compare(parts(button).textBlock.width, data.room);
            button.recalculateTextWidth();
            compare(textWidths(button), Array(4).fill(data.room));
            const other = create(Object.assign(properties, { titleText: "Title", subtitleText: longText }));
            compare(textWidths(other), Array(4).fill(data.room));
        }

        function test_hiddenIconsLeaveTheirRoom() {
            const button = create({ titleText: longText, leftIconSource: _scene.icon, spacing: 5 });
            compare(textWidths(button)[0], 300 - 29 - 5);
            parts(button).leftIcon.visible = false;
            button.titleText = longText + " again";
            compare(textWidths(button)[0], 300 - 5);
        }

        function test_textsThatFitShareTheLargerWidth() {
            const button = create({ titleText: "Title", subtitleText: "A longer subtitle" });
            const { title, subtitle } = parts(button);
            verify(title.implicitWidth < subtitle.implicitWidth);
            verify(subtitle.implicitWidth < 300);
            compare(textWidths(button), Array(4).fill(subtitle.implicitWidth));
        }

        function test_changedTextIsCutToTheRoomAgain_data() {
            return [
                { tag: "short to long", from: "Title", to: longText, room: 300 },
                { tag: "long to other long", from: longText, to: longText + " of it", room: 300 },
                { tag: "empty to long", from: "", to: longText, room: 300 },
            ];
        }

        function test_changedTextIsCutToTheRoomAgain(data) {
            for (const text of ["titleText", "subtitleText"]) {
                const button = create({ [text]: data.from });
                button[text] = data.to;
                compare(textWidths(button), Array(4).fill(data.room), text);
            }
        }

        function test_changedTextThatFitsGetsItsOwnWidth() {
            const button = create({ titleText: "Title" });
            button.titleText = "A longer title";
            const { title } = parts(button);
            const natural = create({ titleText: "A longer title" });
            compare(title.width, parts(natural).title.width);
            verify(title.width < 300);
            button.titleText = longText;
            compare(title.width, 300);
            button.titleText = "Title";
            compare(title.width, parts(create({ titleText: "Title" })).title.width);
        }

        function test_changedWidthCountsOnlyWhenAskedTo() {
            const button = create({ titleText: longText });
            button.width = 200;
            compare(textWidths(button), Array(4).fill(300));
            button.fixedSize = Qt.size(150, 60);
            compare(textWidths(button), Array(4).fill(300));
            button.recalculateTextWidth();
            compare(textWidths(button), Array(4).fill(200));
        }

        // A cut text asks for no more than it got.
        function test_moreRoomIsTakenOnlyByANewText() {
            const button = create({ titleText: longText });
            button.width = 400;
            button.recalculateTextWidth();
            compare(textWidths(button), Array(4).fill(300));
            button.titleText = longText + " again";
            compare(textWidths(button), Array(4).fill(400));
        }

        function test_changedIconsCountOnlyWhenAskedTo() {
            const button = create({ titleText: longText });
            button.leftIconSource = _scene.icon;
            compare(textWidths(button), Array(4).fill(300));
            button.recalculateTextWidth();
            compare(textWidths(button), Array(4).fill(276));
        }

        function test_widthMode() {
            const button = create({ titleText: longText, leftPadding: 10, rightPadding: 15 });
            compare(button.implicitWidth, 300);
            compare(button.implicitHeight, 60);
            compare(button.width, 300);
            button.fixedSize = Qt.size(250, 50);
            compare(button.width, 250);
            compare(button.height, 50);
        }

        function test_freeWidthGrowsWithTheRow() {
            const button = create({ isFixedWidth: false, titleText: "Title", subtitleText: "Sub", leftPadding: 10,
                                    rightPadding: 15, spacing: 5, leftIconSource: _scene.icon,
                                    rightIconSize: Qt.size(30, 30), rightIconSource: _scene.icon });
            const { row, title } = parts(button);
            const natural = title.implicitWidth;
            verify(natural > 0);
            tryCompare(button, "implicitWidth", 10 + 24 + 5 + natural + 5 + 30 + 15);
            compare(button.width, button.implicitWidth);
            compare(button.implicitHeight, 60);
            compare(title.width, natural);
            button.titleText = longText;
            verify(title.implicitWidth > 300);
            tryCompare(row, "width", 24 + 5 + title.implicitWidth + 5 + 30);
            tryCompare(button, "width", row.width + 25);
            compare(title.width, title.implicitWidth);
        }

        function test_freeWidthTextsAreNotTouched() {
            const button = create({ isFixedWidth: false, titleText: longText, subtitleText: "Sub" });
            const before = textWidths(button);
            button.width = 100;
            button.recalculateTextWidth();
            compare(textWidths(button), before);
            button.subtitleText = "Other";
            verify(parts(button).subtitle.textWidth !== KELUIQCG.KelGlobal.numberMaxValue);
        }

        function test_settles_data() {
            const rows = [];
            for (const width of [0, 1, 5, 20, 99.5, 100.25, 299, 300]) {
                for (const title of ["", "Title", longText])
                    rows.push({ tag: width + ", " + title.length + " letters", width, title });
            }
            return rows;
        }

        // A cut text must not report a width other than the one it was given, or it would shrink again and again.
        function test_settles(data) {
            const button = create({ titleText: data.title, subtitleText: "A subtitle for comparison",
                                    fixedSize: Qt.size(data.width, 60) });
            const { title, subtitle } = parts(button);
            waitForRendering(button);
            const widths = textWidths(button);
            const spies = [spy(title, "implicitWidthChanged"), spy(subtitle, "implicitWidthChanged"),
                           spy(title, "widthChanged"), spy(subtitle, "widthChanged")];
            for (let call = 0; call < 3; ++call)
                button.recalculateTextWidth();
            compare(spies.map(spy => spy.count), [0, 0, 0, 0]);
            compare(textWidths(button), widths);
            compare(button.width, data.width);
        }

        function test_colorsJumpUnlessAnimated() {
            const button = create({ titleText: "Title", subtitleText: "Sub" });
            const { background, title, subtitle } = parts(button);
            button.focused = true;
            compare(background.color, "#ff0001");
            compare(title.color, "#ff0004");
            compare(subtitle.color, "#ff0005");
        }

        function test_animations_data() {
            return [
                { tag: "background", background: true, text: false },
                { tag: "text", background: false, text: true },
                { tag: "both", background: true, text: true },
            ];
        }

        function test_animations(data) {
            const button = create({ titleText: "Title", subtitleText: "Sub", animateBackgroundColors: data.background,
                                    animateTextColors: data.text });
            const { background, title, subtitle } = parts(button);
            compare(background.color, "#aa0001");
            compare(title.color, "#aa0004");
            compare(subtitle.color, "#aa0005");
            button.focused = true;
            compare(background.color, data.background ? "#aa0001" : "#ff0001");
            compare(title.color, data.text ? "#aa0004" : "#ff0004");
            compare(subtitle.color, data.text ? "#aa0005" : "#ff0005");
            tryCompare(background, "color", "#ff0001");
            tryCompare(title, "color", "#ff0004");
            tryCompare(subtitle, "color", "#ff0005");
        }

        function test_iconColorsJumpAlways() {
            const button = create({ animateBackgroundColors: true, animateTextColors: true });
            button.focused = true;
            compare(parts(button).leftIcon.iconColor, "#ff0002");
            compare(parts(button).rightIcon.iconColor, "#ff0003");
        }

        // Animations so long that a test sees their first part only: a straight line has hardly left its start
        // when a curve that rises steeply is well under way.
        function test_curveIsUsedOnlyWithBezierSpline_data() {
            return [
                { tag: "background, Linear", element: "background", type: Easing.Linear, isSteep: false },
                { tag: "background, BezierSpline", element: "background", type: Easing.BezierSpline, isSteep: true },
                { tag: "text, Linear", element: "title", type: Easing.Linear, isSteep: false },
                { tag: "text, BezierSpline", element: "title", type: Easing.BezierSpline, isSteep: true },
            ];
        }

        function test_curveIsUsedOnlyWithBezierSpline(data) {
            const prefix = data.element === "background" ? "background" : "text";
            const button = create({
                titleText: "Title", subtitleText: "Sub",
                backgroundColors: { normal: "#000000", focused: "#ffffff" },
                titleColors: { normal: "#000000", focused: "#ffffff" },
                subtitleColors: { normal: "#000000", focused: "#ffffff" },
                animateBackgroundColors: true, animateTextColors: true,
                [prefix + "ColorsAnimationDuration"]: 100000,
                [prefix + "ColorsAnimationEasingType"]: data.type,
                [prefix + "ColorsBezierAnimationInterpolator"]: [0, 1, 0, 1, 1, 1],
            });
            button.focused = true;
            const elements = data.element === "background" ? ["background"] : ["title", "subtitle"];
            for (const name of elements) {
                const element = parts(button)[name];
                tryVerify(() => element.color.r > (data.isSteep ? 0.25 : 0), 5000, name);
                if (!data.isSteep)
                    verify(element.color.r < 0.1, element.color);
            }
        }

        function test_durationIsFollowed() {
            const button = create({ titleText: "Title", animateBackgroundColors: true, animateTextColors: true,
                                    backgroundColorsAnimationDuration: 100000, textColorsAnimationDuration: 10 });
            const { background, title } = parts(button);
            button.focused = true;
            tryCompare(title, "color", "#ff0004");
            verify(background.color.r < 0.8, background.color);
        }
    }
}
