// SPDX-License-Identifier: MIT
import QtTest
import Kelui.UI.Qml.Controls.Generic as KELUIQCG

TestCase {
    name: "KelGlobal"

    readonly property var enumerations: ({
        FocusingRuleFlag: {
            NoRule: 0, SectorLeftTop: 1, SectorRightTop: 4, SectorLeftBottom: 8, SectorRightBottom: 16,
            HalfPlaneLeft: 32, HalfPlaneRight: 64, HalfPlaneTop: 128, HalfPlaneBottom: 256, LoopLeft: 512,
            LoopRight: 1024, LoopTop: 2048, LoopBottom: 4096, LoopHorizontalGrid: 8192,
            RestorableLayoutViewport: 16384, FocusAlwaysOnSelected: 32768, FocusAlwaysOnFirstVisible: 65536,
            FocusAlwaysRules: 98304, ReservedMaximum: 1048576
        },
        InteractiveElementFlag: {
            NoElementFlags: 0, ElementIsNoFocusable: 2, ElementIsSelectable: 4, ElementIsAlwaysSelected: 8,
            ElementIsActivable: 16, ElementIsNotRounded: 32, ElementAcceptsKeyEvents: 64,
            ElementAcceptsMouseEvents: 128, ElementManuallyPaintFocusFrame: 256, ElementHasCustomFocusRect: 512,
            ElementManuallyPaintSelectionFrame: 1024, ElementHasDynamicLayoutGeometry: 2048,
            ElementHasDynamicRenderGeometry: 4096, ElementIsComposite: 8192,
            ElementAlwaysAcceptsKeyEventsIfSelected: 16384, ElementIsCheckable: 32768, ElementIsHidden: 65536,
            ElementHasCustomFocusBorderWidth: 131072, ElementHasCustomFocusFrameSpacing: 262144,
            ElementIsHorizontalSpacer: 524288, ElementIsVerticalSpacer: 1048576, ElementDefaultFlags: 20,
            ElementDefaultWithKeyEvents: 84, ElementDefaultWithMouseEvents: 148,
            ElementManuallyPaintAllFrames: 1280, ElementHasDynamicGeometries: 6144, ElementIsLayoutItem: 1572864
        },
        InteractiveElementSelectionType: {
            ElementSelectionNormal: 0, ElementSelectionError: 1, ElementSelectionMark: 2
        },
        KeyboardType: { NumericKeyboard: 0, AlphabeticKeyboard: 1, AlphanumericKeyboard: 2 },
        KeyboardLayoutType: { RussianLayout: 0, EnglishLayout: 1, SymbolsLayout: 2, NumericLayout: 3 },
        KeyType: {
            TextKey: 0, SpaceKey: 1, DomainKey: 2, BackspaceKey: 3, CapslockKey: 4, LayoutChangeKey: 5, LeftKey: 6,
            RightKey: 7
        },
        MediaBlockType: {
            MediaBlockUnknown: 0, MediaBlockBackground: 1, MediaBlockBonusPrograms: 2, MediaBlockButtons: 3,
            MediaBlockCarousel: 4, MediaBlockCarouselWithoutTitle: 5, MediaBlockSmallCarousel: 6,
            MediaBlockSmallCarouselWithoutTitle: 7, MediaBlockChannels: 8, MediaBlockCollection: 9,
            MediaBlockContinueWatching: 10, MediaBlockContent: 11, MediaBlockDynamicMainMenu: 12,
            MediaBlockLocations: 13, MediaBlockMainMenu: 14, MediaBlockMediaPositions: 15,
            MediaBlockMyCabinetTiles: 16, MediaBlockMyCollection: 17, MediaBlockPaymentMethods: 18,
            MediaBlockPersons: 19, MediaBlockLarge: 20, MediaBlockPromo: 21, MediaBlockRating: 22,
            MediaBlockSearchTiles: 23, MediaBlockSearchCollections: 24, MediaBlockSeasons: 25,
            MediaBlockServicesBlock: 26, MediaBlockServicesList: 27, MediaBlockSlidingCategories: 28,
            MediaBlockStretching: 29, MediaBlockTabs: 30, MediaBlockTop10: 31, MediaBlockTvProgramsPlus: 32,
            MediaBlockWidgets: 33
        },
        ScrollDirection: { ScrollNotNeeded: 0, ScrollDown: 1, ScrollUp: 2, ScrollLeft: 4, ScrollRight: 8 },
        KeyPressEventType: { Pressed: 0, Released: 1 }
    })

    function init() {
        failOnWarning(/.?/);
    }

    function test_enumerations_data() {
        const rows = [];
        for (const enumeration in enumerations) {
            for (const name in enumerations[enumeration])
                rows.push({ tag: enumeration + "." + name, name: name, value: enumerations[enumeration][name] });
        }
        return rows;
    }

    function test_enumerations(data) {
        verify(KELUIQCG.KelGlobal[data.name] === data.value, KELUIQCG.KelGlobal[data.name]);
    }

    function test_valuesCombineToIntegers() {
        const both = KELUIQCG.KelGlobal.FocusAlwaysOnSelected | KELUIQCG.KelGlobal.FocusAlwaysOnFirstVisible;
        verify(both === KELUIQCG.KelGlobal.FocusAlwaysRules);
    }

    function test_numberMaxValueIsFinite() {
        verify(KELUIQCG.KelGlobal.numberMaxValue === Number.MAX_VALUE);
        verify(isFinite(KELUIQCG.KelGlobal.numberMaxValue));
    }

    function test_isReadOnly() {
        for (const name of ["numberMaxValue", "numericLayout"]) {
            try {
                KELUIQCG.KelGlobal[name] = KELUIQCG.KelGlobal[name];
                fail(name);
            } catch (error) {
                verify(error instanceof TypeError, error);
            }
        }
    }

    // Rows as the keyboard shows them, the columns that they fill, and how many of these the space key takes.
    function test_layouts_data() {
        const russian = ["й ц у к е н г ш щ з х ъ",
                         "ф ы в а п р о л д ж э ё",
                         "я ч с м и т ь б ю - _ ?",
                         "capslock layout_symbols layout_eng space left right backspace"];
        const english = ["q w e r t y u i o p ?",
                         "a s d f g h j k l - _",
                         "z x c v b n m . , domain_com domain_ru",
                         "capslock layout_symbols layout_rus space left right backspace"];
        return [
            { tag: "numericLayout", count: 11, columns: 11, rows: ["1 2 3 4 5 6 7 8 9 0 backspace"] },
            { tag: "russianLayout", count: 43, columns: 12, space: 6, rows: russian },
            { tag: "russianAndNumericLayout", count: 55, columns: 12, space: 6,
              rows: ["1 2 3 4 5 6 7 8 9 0 . ,", ...russian] },
            { tag: "englishLayout", count: 40, columns: 11, space: 5, rows: english },
            { tag: "englishAndNumericLayout", count: 51, columns: 11, space: 5,
              rows: ["1 2 3 4 5 6 7 8 9 0 @", ...english] },
            { tag: "symbolsLayout", count: 36, columns: 10, space: 5,
              rows: ["1 2 3 4 5 6 7 8 9 0",
                     ". , ? ! + - * / = @",
                     ": ; \u2014 _ % $ & \u2116 ^ #",
                     "layout_rus layout_eng space left right backspace"] },
            { tag: "symbolsAndNumericLayout", count: 50, columns: 11, space: 6,
              rows: ["1 2 3 4 5 6 7 8 9 0 @",
                     ". , ? ! + - * / = \\ '",
                     ": ; \u2014 _ % $ & \u2116 ^ # |",
                     "~ ` ( ) { } < > [ ] \"",
                     "layout_rus layout_eng space left right backspace"] },
        ];
    }

    function test_layouts(data) {
        const layout = Array.from(KELUIQCG.KelGlobal[data.tag]);
        compare(layout.length, data.count);
        const expected = data.rows.join(" ").split(" ");
        for (let index = 0; index < expected.length; ++index)
            verify(layout[index] === expected[index], index + ": " + layout[index]);
        compare(layout.length, expected.length);
        for (const row of data.rows) {
            const keys = row.split(" ");
            compare(keys.length + (keys.includes("space") ? data.space - 1 : 0), data.columns, row);
        }
        for (const key of layout)
            verify(key === key.toLowerCase(), key);
        compare(Array.from(KELUIQCG.KelGlobal[data.tag]), layout);
    }

    function test_layoutsThatEachOffers_data() {
        return [
            { tag: "russianLayout", offered: ["layout_eng", "layout_symbols"] },
            { tag: "englishLayout", offered: ["layout_rus", "layout_symbols"] },
            { tag: "symbolsLayout", offered: ["layout_eng", "layout_rus"] },
            { tag: "symbolsAndNumericLayout", offered: ["layout_eng", "layout_rus"] },
            { tag: "numericLayout", offered: [] },
        ];
    }

    function test_layoutsThatEachOffers(data) {
        const layout = Array.from(KELUIQCG.KelGlobal[data.tag]);
        compare(layout.filter(key => key.startsWith("layout_")).sort(), data.offered);
    }
}
