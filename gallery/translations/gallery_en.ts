<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Four states, two ways to find the width, titles cut to the room left</source>
        <translation>Four states, two ways to find the width, titles cut to the room left</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>isFixedWidth: true, animated colours — OK toggles checked</source>
        <translation>isFixedWidth: true, animated colours — OK toggles checked</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Watch</translation>
    </message>
    <message>
        <source>Add the programme “Northern Lights” to favourites</source>
        <translation>Add the programme “Northern Lights” to favourites</translation>
    </message>
    <message>
        <source>isFixedWidth: false — as wide as the texts</source>
        <translation>isFixedWidth: false — as wide as the texts</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Record the programme</source>
        <translation>Record the programme</translation>
    </message>
    <message>
        <source>All episodes</source>
        <translation>All episodes</translation>
    </message>
    <message>
        <source>subtitleText, both icons</source>
        <translation>subtitleText, both icons</translation>
    </message>
    <message>
        <source>“Cinema” package</source>
        <translation>“Cinema” package</translation>
    </message>
    <message>
        <source>299 ₽ a month</source>
        <translation>299 ₽ a month</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Surround, all the loudspeakers</source>
        <translation>Surround, all the loudspeakers</translation>
    </message>
</context>
<context>
    <name>IconPage</name>
    <message>
        <source>An image file in one colour, that of its control&apos;s state</source>
        <translation>An image file in one colour, that of its control&apos;s state</translation>
    </message>
    <message>
        <source>implicit size: that of the file</source>
        <translation>implicit size: that of the file</translation>
    </message>
    <message>
        <source>coloringMethod, with gold of 50 % alpha</source>
        <translation>coloringMethod, with gold of 50 % alpha</translation>
    </message>
    <message>
        <source>coloured transparent: it is gone</source>
        <translation>coloured transparent: it is gone</translation>
    </message>
    <message>
        <source>as the file draws it</source>
        <translation>as the file draws it</translation>
    </message>
</context>
<context>
    <name>ImageColorizerPage</name>
    <message>
        <source>opaque</source>
        <translation>opaque</translation>
    </message>
    <message>
        <source>60 % alpha</source>
        <translation>60 % alpha</translation>
    </message>
    <message>
        <source>25 % alpha</source>
        <translation>25 % alpha</translation>
    </message>
    <message>
        <source>Replaces the colour of a picture, with its own alpha or with the colour&apos;s</source>
        <translation>Replaces the colour of a picture, with its own alpha or with the colour&apos;s</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>the file</translation>
    </message>
    <message>
        <source>A pixel keeps its alpha; black stays</source>
        <translation>A pixel keeps its alpha; black stays</translation>
    </message>
    <message>
        <source>The colour&apos;s alpha counts; black too</source>
        <translation>The colour&apos;s alpha counts; black too</translation>
    </message>
    <message>
        <source>white</source>
        <translation>white</translation>
    </message>
    <message>
        <source>gold</source>
        <translation>gold</translation>
    </message>
    <message>
        <source>mint</source>
        <translation>mint</translation>
    </message>
    <message>
        <source>rose</source>
        <translation>rose</translation>
    </message>
    <message>
        <source>50 % white</source>
        <translation>50 % white</translation>
    </message>
    <message>
        <source>color: %1 — OK for the next</source>
        <translation>color: %1 — OK for the next</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>RoundedImage draws the whole picture, ClippableImage a window onto its middle</source>
        <translation>RoundedImage draws the whole picture, ClippableImage a window onto its middle</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Dunes</translation>
    </message>
    <message>
        <source>Documentary, 2024</source>
        <translation>Documentary, 2024</translation>
    </message>
    <message>
        <source>City at Night</source>
        <translation>City at Night</translation>
    </message>
    <message>
        <source>Drama, 12 episodes</source>
        <translation>Drama, 12 episodes</translation>
    </message>
    <message>
        <source>Northern Lights</source>
        <translation>Northern Lights</translation>
    </message>
    <message>
        <source>Travel, live</source>
        <translation>Travel, live</translation>
    </message>
    <message>
        <source>ClippableImage %1 × %2 on an image of %3 × %4 — OK for the next width</source>
        <translation>ClippableImage %1 × %2 on an image of %3 × %4 — OK for the next width</translation>
    </message>
</context>
<context>
    <name>KeyItem</name>
    <message>
        <source>SPACE_KEY</source>
        <translation>Space</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>move</source>
        <translation>move</translation>
    </message>
    <message>
        <source>open</source>
        <translation>open</translation>
    </message>
    <message>
        <source>press</source>
        <translation>press</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>quit</translation>
    </message>
    <message>
        <source>fields</source>
        <translation>fields</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>menu</translation>
    </message>
    <message>
        <source>type</source>
        <translation>type</translation>
    </message>
    <message>
        <source>page</source>
        <translation>page</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Vocabulary</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in itself.</extracomment>
        <translation>English</translation>
    </message>
</context>
<context>
    <name>RectanglePage</name>
    <message>
        <source>A filled box; its corners are square unless rounding is forced</source>
        <translation>A filled box; its corners are square unless rounding is forced</translation>
    </message>
    <message>
        <source>roundingRadius: 40, forceRounding: %1 — OK switches</source>
        <translation>roundingRadius: 40, forceRounding: %1 — OK switches</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>LineEdit and Keyboard: each field brings the keyboard that suits it</source>
        <translation>LineEdit and Keyboard: each field brings the keyboard that suits it</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Film, channel, person</source>
        <translation>Film, channel, person</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>As others see it</source>
        <translation>As others see it</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Phone: digits are missing</source>
        <translation>Phone: digits are missing</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Letters and digits</source>
        <translation>Letters and digits</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>E-mail: not an address</source>
        <translation>E-mail: not an address</translation>
    </message>
    <message>
        <source>Promo code</source>
        <translation>Promo code</translation>
    </message>
    <message>
        <source>8 characters</source>
        <translation>8 characters</translation>
    </message>
    <message>
        <source>Promo code: 8 characters</source>
        <translation>Promo code: 8 characters</translation>
    </message>
</context>
<context>
    <name>TextPage</name>
    <message>
        <source>Plain text in one colour and font: wrapped, cut and aligned</source>
        <translation>Plain text in one colour and font: wrapped, cut and aligned</translation>
    </message>
    <message>
        <source>Lines break between words; a word wider than the line breaks anywhere.</source>
        <translation>Lines break between words; a word wider than the line breaks anywhere.</translation>
    </message>
    <message>
        <source>text: markup stays as typed, RTL at the right</source>
        <translation>text: markup stays as typed, RTL at the right</translation>
    </message>
</context>
<context>
    <name>VocabularyPage</name>
    <message>
        <source>KelGlobal: keyboard layouts and enumerations that all controls share</source>
        <translation>KelGlobal: keyboard layouts and enumerations that all controls share</translation>
    </message>
    <message>
        <source>%1Layout: %2 keys</source>
        <translation>%1Layout: %2 keys</translation>
    </message>
</context>
</TS>
