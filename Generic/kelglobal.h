// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

/*!
    The words that screens and controls share: enumerations, an unlimited width, and the key layouts of
    the on-screen keyboard. Stateless; one per engine, named KelGlobal in QML.

    The enumerations are plain integers in QML (KelGlobal.NumericKeyboard). Bit values are combined with |
    and stay integers. Numbers are part of the interface, gaps included.
*/
class KelGlobal : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    //! The largest finite double: a width without limit.
    Q_PROPERTY(double numberMaxValue READ numberMaxValue CONSTANT FINAL)

    // Each layout lists its keys row by row. One character is a key that types it; "backspace", "capslock",
    // "space", "left", "right", "layout_rus", "layout_eng", "layout_symbols", "domain_com" and "domain_ru"
    // are keys with a function.
    Q_PROPERTY(QStringList numericLayout READ numericLayout CONSTANT FINAL)
    Q_PROPERTY(QStringList russianLayout READ russianLayout CONSTANT FINAL)
    Q_PROPERTY(QStringList russianAndNumericLayout READ russianAndNumericLayout CONSTANT FINAL)
    Q_PROPERTY(QStringList englishLayout READ englishLayout CONSTANT FINAL)
    Q_PROPERTY(QStringList englishAndNumericLayout READ englishAndNumericLayout CONSTANT FINAL)
    Q_PROPERTY(QStringList symbolsLayout READ symbolsLayout CONSTANT FINAL)
    Q_PROPERTY(QStringList symbolsAndNumericLayout READ symbolsAndNumericLayout CONSTANT FINAL)

public:
    //! How focus moves in a container; bit values. 2 is deliberately unused.
    enum FocusingRuleFlag {
        NoRule = 0,
        SectorLeftTop = 1,
        SectorRightTop = 4,
        SectorLeftBottom = 8,
        SectorRightBottom = 16,
        HalfPlaneLeft = 32,
        HalfPlaneRight = 64,
        HalfPlaneTop = 128,
        HalfPlaneBottom = 256,
        LoopLeft = 512,
        LoopRight = 1024,
        LoopTop = 2048,
        LoopBottom = 4096,
        LoopHorizontalGrid = 8192,
        RestorableLayoutViewport = 16384,
        FocusAlwaysOnSelected = 32768,
        FocusAlwaysOnFirstVisible = 65536,
        FocusAlwaysRules = FocusAlwaysOnSelected | FocusAlwaysOnFirstVisible,
        ReservedMaximum = 1048576
    };
    Q_ENUM(FocusingRuleFlag)

    //! What an interactive element can do and who paints its frames; bit values. 1 is deliberately unused.
    enum InteractiveElementFlag {
        NoElementFlags = 0,
        ElementIsNoFocusable = 2,
        ElementIsSelectable = 4,
        ElementIsAlwaysSelected = 8,
        ElementIsActivable = 16,
        ElementIsNotRounded = 32,
        ElementAcceptsKeyEvents = 64,
        ElementAcceptsMouseEvents = 128,
        ElementManuallyPaintFocusFrame = 256,
        ElementHasCustomFocusRect = 512,
        ElementManuallyPaintSelectionFrame = 1024,
        ElementHasDynamicLayoutGeometry = 2048,
        ElementHasDynamicRenderGeometry = 4096,
        ElementIsComposite = 8192,
        ElementAlwaysAcceptsKeyEventsIfSelected = 16384,
        ElementIsCheckable = 32768,
        ElementIsHidden = 65536,
        ElementHasCustomFocusBorderWidth = 131072,
        ElementHasCustomFocusFrameSpacing = 262144,
        ElementIsHorizontalSpacer = 524288,
        ElementIsVerticalSpacer = 1048576,
        ElementDefaultFlags = ElementIsSelectable | ElementIsActivable,
        ElementDefaultWithKeyEvents = ElementDefaultFlags | ElementAcceptsKeyEvents,
        ElementDefaultWithMouseEvents = ElementDefaultFlags | ElementAcceptsMouseEvents,
        ElementManuallyPaintAllFrames = ElementManuallyPaintFocusFrame | ElementManuallyPaintSelectionFrame,
        ElementHasDynamicGeometries = ElementHasDynamicLayoutGeometry | ElementHasDynamicRenderGeometry,
        ElementIsLayoutItem = ElementIsHorizontalSpacer | ElementIsVerticalSpacer
    };
    Q_ENUM(InteractiveElementFlag)

    //! How a selected element is marked.
    enum InteractiveElementSelectionType {
        ElementSelectionNormal = 0,
        ElementSelectionError = 1,
        ElementSelectionMark = 2
    };
    Q_ENUM(InteractiveElementSelectionType)

    //! Which keys an on-screen keyboard offers.
    enum KeyboardType { NumericKeyboard = 0, AlphabeticKeyboard = 1, AlphanumericKeyboard = 2 };
    Q_ENUM(KeyboardType)

    //! The layout that an on-screen keyboard shows.
    enum KeyboardLayoutType { RussianLayout = 0, EnglishLayout = 1, SymbolsLayout = 2, NumericLayout = 3 };
    Q_ENUM(KeyboardLayoutType)

    //! What one key of the on-screen keyboard does.
    enum KeyType {
        TextKey = 0,
        SpaceKey = 1,
        DomainKey = 2,
        BackspaceKey = 3,
        CapslockKey = 4,
        LayoutChangeKey = 5,
        LeftKey = 6,
        RightKey = 7
    };
    Q_ENUM(KeyType)

    //! The kinds of media block that content pages are made of.
    enum MediaBlockType {
        MediaBlockUnknown = 0,
        MediaBlockBackground = 1,
        MediaBlockBonusPrograms = 2,
        MediaBlockButtons = 3,
        MediaBlockCarousel = 4,
        MediaBlockCarouselWithoutTitle = 5,
        MediaBlockSmallCarousel = 6,
        MediaBlockSmallCarouselWithoutTitle = 7,
        MediaBlockChannels = 8,
        MediaBlockCollection = 9,
        MediaBlockContinueWatching = 10,
        MediaBlockContent = 11,
        MediaBlockDynamicMainMenu = 12,
        MediaBlockLocations = 13,
        MediaBlockMainMenu = 14,
        MediaBlockMediaPositions = 15,
        MediaBlockMyCabinetTiles = 16,
        MediaBlockMyCollection = 17,
        MediaBlockPaymentMethods = 18,
        MediaBlockPersons = 19,
        MediaBlockLarge = 20,
        MediaBlockPromo = 21,
        MediaBlockRating = 22,
        MediaBlockSearchTiles = 23,
        MediaBlockSearchCollections = 24,
        MediaBlockSeasons = 25,
        MediaBlockServicesBlock = 26,
        MediaBlockServicesList = 27,
        MediaBlockSlidingCategories = 28,
        MediaBlockStretching = 29,
        MediaBlockTabs = 30,
        MediaBlockTop10 = 31,
        MediaBlockTvProgramsPlus = 32,
        MediaBlockWidgets = 33
    };
    Q_ENUM(MediaBlockType)

    //! Where a view can or must scroll; bit values.
    enum ScrollDirection {
        ScrollNotNeeded = 0,
        ScrollDown = 1,
        ScrollUp = 2,
        ScrollLeft = 4,
        ScrollRight = 8
    };
    Q_ENUM(ScrollDirection)

    //! The phase of a key event.
    enum KeyPressEventType { Pressed = 0, Released = 1 };
    Q_ENUM(KeyPressEventType)

    explicit KelGlobal(QObject *parent = nullptr);

    //! A new instance without a parent; the engine that asks owns it.
    static KelGlobal *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    double numberMaxValue() const;
    QStringList numericLayout() const;
    QStringList russianLayout() const;
    QStringList russianAndNumericLayout() const;
    QStringList englishLayout() const;
    QStringList englishAndNumericLayout() const;
    QStringList symbolsLayout() const;
    QStringList symbolsAndNumericLayout() const;
};
