// SPDX-License-Identifier: MIT
import QtQuick
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

Rectangle {
    id: _scene

    readonly property string pixels: Qt.resolvedUrl("data/pixels.png")
    readonly property string white: Qt.resolvedUrl("data/icon.png")

    width: 200
    height: 200
    color: "#00ff00"

    Component {
        id: _component

        KELUIQCG.Icon {}
    }

    Component {
        id: _framedComponent

        KELUIQCG.Icon {
            width: 50
            height: 40
            background: Rectangle {
                width: 10
                height: 12
            }
        }
    }

    TestCase {
        name: "Icon"
        when: windowShown

        function init() {
            failOnWarning(/.?/);
        }

        function create(properties) {
            return createTemporaryObject(_component, _scene, properties ?? {});
        }

        function colorizer(icon) {
            return icon.contentItem.resources[0];
        }

        // Compares the pixels on screen, row by row, with colours laid over the scene's own.
        function compareShown(icon, colors) {
            const picture = grabImage(icon);
            compare(picture.width * picture.height, colors.length);
            colors.forEach((text, index) => {
                const expected = Qt.tint(_scene.color, text);
                const shown = picture.pixel(index % picture.width, Math.floor(index / picture.width));
                fuzzyCompare(shown, expected, 2, "pixel " + index);
            });
        }

        function test_defaults() {
            const icon = create();
            compare(icon.source, "");
            compare(icon.colorizeOnTransparent, true);
            compare(icon.iconColor, "#00000000");
            compare(icon.coloringMethod, 1);
            compare(icon.coloringMethod, KELUIQCG.ImageColorizer.DestinationAlpha);
            compare(icon.roundingRadius, 0);
            compare(icon.cacheIconImage, true);
            compare(icon.mirror, false);
            for (const name of ["topInset", "leftInset", "rightInset", "bottomInset", "padding", "leftPadding",
                                "topPadding", "rightPadding", "bottomPadding"])
                compare(icon[name], 0, name);
        }

        // Where insets are set, also to 0, a background takes them from the control whatever size it has.
        function test_backgroundOfAnySizeFillsTheIcon() {
            const icon = createTemporaryObject(_framedComponent, _scene);
            compare([icon.background.width, icon.background.height], [50, 40]);
            icon.width = 60;
            compare([icon.background.width, icon.background.height], [60, 40]);
        }

        function test_imagePropertiesReachTheImage() {
            const icon = create({ source: _scene.white, roundingRadius: 5, cacheIconImage: false, mirror: true });
            compare(icon.contentItem.source.toString(), _scene.white);
            compare(icon.contentItem.roundingRadius, 5);
            compare(icon.contentItem.cache, false);
            compare(icon.contentItem.mirror, true);
        }

        function test_isAsLargeAsItsFileUnlessSized() {
            const icon = create({ source: _scene.white });
            compare(icon.implicitWidth, 24);
            compare(icon.implicitHeight, 16);
            compare(icon.width, 24);
            compare(icon.height, 16);
            icon.source = _scene.pixels;
            compare(icon.width, 4);
            compare(icon.height, 2);
            icon.width = 40;
            icon.height = 30;
            compare(icon.contentItem.width, 40);
            compare(icon.contentItem.height, 30);
            compare(icon.implicitWidth, 4);
        }

        function test_emptySourceShowsNothing() {
            const icon = create({ iconColor: "red", width: 4, height: 2 });
            compare(icon.implicitWidth, 0);
            compare(icon.implicitHeight, 0);
            compare(icon.contentItem.status, Image.Null);
            compareShown(icon, Array(8).fill("#00000000"));
        }

        function test_colors_data() {
            const dest = KELUIQCG.ImageColorizer.DestinationAlpha;
            const src = KELUIQCG.ImageColorizer.SourceAlpha;
            const none = "#00000000";
            const file = ["#ffffff", "#80ffffff", "#000000", none, "#ff0000", "#ffffff", "#ffffff", "#000000"];
            const c = "#0000ff";
            return [
                { tag: "opaque", color: "blue", method: dest,
                  pixels: [c, "#800000ff", c, none, c, c, c, c] },
                { tag: "half transparent", color: "#800000ff", method: dest,
                  pixels: ["#800000ff", "#400000ff", "#800000ff", none,
                           "#800000ff", "#800000ff", "#800000ff", "#800000ff"] },
                { tag: "transparent hides all but black", color: "transparent", method: dest,
                  pixels: [none, none, "#000000", none, none, none, none, "#000000"] },
                { tag: "transparent, left as it is", color: "transparent", method: dest, onTransparent: false,
                  pixels: file },
                { tag: "opaque, whatever transparent means", color: "blue", method: dest, onTransparent: false,
                  pixels: [c, "#800000ff", c, none, c, c, c, c] },
                // Not the colour "transparent": its red is not 0.
                { tag: "transparent red hides too", color: "#00ff0000", method: dest, onTransparent: false,
                  pixels: [none, none, "#000000", none, none, none, none, "#000000"] },
                { tag: "SourceAlpha, opaque", color: "blue", method: src,
                  pixels: [c, "#800000ff", "#000000", none, c, c, c, "#000000"] },
                { tag: "SourceAlpha ignores the colour's alpha", color: "#100000ff", method: src,
                  pixels: [c, "#800000ff", "#000000", none, c, c, c, "#000000"] },
                { tag: "SourceAlpha, transparent paints black", color: "transparent", method: src,
                  pixels: ["#000000", "#80000000", "#000000", none, "#000000", "#000000", "#000000", "#000000"] },
            ];
        }

        function test_colors(data) {
            const icon = create({ source: _scene.pixels, iconColor: data.color, coloringMethod: data.method,
                                  colorizeOnTransparent: data.onTransparent ?? true });
            compare(icon.contentItem.status, Image.Ready);
            compareShown(icon, data.pixels);
        }

        function test_colorizerIsOffOnlyForATransparentColorThatMeansNothing_data() {
            return [
                { tag: "transparent", color: "transparent", onTransparent: true, enabled: true },
                { tag: "transparent, left", color: "transparent", onTransparent: false, enabled: false },
                { tag: "opaque", color: "red", onTransparent: true, enabled: true },
                { tag: "opaque, left", color: "red", onTransparent: false, enabled: true },
                { tag: "nearly transparent, left", color: "#01000000", onTransparent: false, enabled: true },
            ];
        }

        function test_colorizerIsOffOnlyForATransparentColorThatMeansNothing(data) {
            const icon = create({ iconColor: data.color, colorizeOnTransparent: data.onTransparent,
                                  coloringMethod: 0 });
            compare(colorizer(icon).enabled, data.enabled);
            compare(colorizer(icon).sourceItem, icon.contentItem);
            compare(colorizer(icon).color, icon.iconColor);
            compare(colorizer(icon).coloringMethod, 0);
        }

        function test_colorChangesRecolorWhatIsShown() {
            const icon = create({ source: _scene.pixels, iconColor: "red" });
            compareShown(icon, ["#ff0000", "#80ff0000", "#ff0000", "#00000000",
                                "#ff0000", "#ff0000", "#ff0000", "#ff0000"]);
            icon.iconColor = "#800000ff";
            compareShown(icon, ["#800000ff", "#400000ff", "#800000ff", "#00000000",
                                "#800000ff", "#800000ff", "#800000ff", "#800000ff"]);
            icon.iconColor = "blue";
            compareShown(icon, ["#0000ff", "#800000ff", "#0000ff", "#00000000",
                                "#0000ff", "#0000ff", "#0000ff", "#0000ff"]);
        }

        function test_newSourceTakesTheColor() {
            const icon = create({ source: _scene.white, iconColor: "red" });
            compare(grabImage(icon).pixel(0, 0), "#ff0000");
            icon.source = _scene.pixels;
            compare(grabImage(icon).pixel(0, 0), "#ff0000");
        }

        function test_turningRecoloringOffDoesNotRestore() {
            const icon = create({ source: _scene.white });
            compare(grabImage(icon).pixel(0, 0), _scene.color);
            icon.colorizeOnTransparent = false;
            compare(colorizer(icon).enabled, false);
            compare(grabImage(icon).pixel(0, 0), _scene.color);
            icon.source = "";
            icon.source = _scene.white;
            compare(grabImage(icon).pixel(0, 0), "#ffffff");
        }

        function test_mirror() {
            const icon = create({ source: _scene.pixels, iconColor: "blue", mirror: true });
            compareShown(icon, ["#00000000", "#0000ff", "#800000ff", "#0000ff",
                                "#0000ff", "#0000ff", "#0000ff", "#0000ff"]);
        }
    }
}
