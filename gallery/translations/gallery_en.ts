<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>BrushAreaPage</name>
    <message>
        <source>Areas filled with brushes that are made in C++</source>
        <translation>Areas filled with brushes that are made in C++</translation>
    </message>
    <message>
        <source>pattern: diagonals</source>
        <translation>pattern: diagonals</translation>
    </message>
    <message>
        <source>pattern: crosses</source>
        <translation>pattern: crosses</translation>
    </message>
    <message>
        <source>texture</source>
        <translation>texture</translation>
    </message>
    <message>
        <source>linear gradient</source>
        <translation>linear gradient</translation>
    </message>
    <message>
        <source>radial gradient</source>
        <translation>radial gradient</translation>
    </message>
    <message>
        <source>conical gradient</source>
        <translation>conical gradient</translation>
    </message>
    <message>
        <source>OK on a brush paints the wide area with it</source>
        <translation>OK on a brush paints the wide area with it</translation>
    </message>
</context>
<context>
    <name>BusyIndicatorPage</name>
    <message>
        <source>Looking for channels</source>
        <translation>Looking for channels</translation>
    </message>
    <message>
        <source>This takes some minutes; the remote control can be laid aside</source>
        <translation>This takes some minutes; the remote control can be laid aside</translation>
    </message>
    <message>
        <source>One moment, please</source>
        <translation>One moment, please</translation>
    </message>
    <message>
        <source>Two strips of square frames, played one after the other</source>
        <translation>Two strips of square frames, played one after the other</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>frame %1 of %2</source>
        <translation>frame %1 of %2</translation>
    </message>
    <message>
        <source>long</source>
        <translation>long</translation>
    </message>
    <message>
        <source>short</source>
        <translation>short</translation>
    </message>
</context>
<context>
    <name>BusyZone</name>
    <message>
        <source>One moment, the film is being prepared</source>
        <translation>One moment, the film is being prepared</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
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
    <name>CheckBoxPage</name>
    <message>
        <source>A title wraps beside its box; the focus frame is around the box alone</source>
        <translation>A title wraps beside its box; the focus frame is around the box alone</translation>
    </message>
    <message>
        <source>Play the next episode</source>
        <translation>Play the next episode</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Subtitles in the language of the menus whenever a programme has them</source>
        <translation>Subtitles in the language of the menus whenever a programme has them</translation>
    </message>
    <message>
        <source>Only at night, and not over mobile networks</source>
        <translation>Only at night, and not over mobile networks</translation>
    </message>
    <message>
        <source>A round box, forceRounding</source>
        <translation>A round box, forceRounding</translation>
    </message>
    <message>
        <source>Not with your subscription</source>
        <translation>Not with your subscription</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Each with its properties, its states, and the code that makes it</source>
        <translation>Each with its properties, its states, and the code that makes it</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Buttons</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Typing</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Lists and layout</source>
        <translation>Lists and layout</translation>
    </message>
    <message>
        <source>Indicators</source>
        <translation>Indicators</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Vocabulary</translation>
    </message>
</context>
<context>
    <name>DetailsZone</name>
    <message>
        <source>Watch</source>
        <translation>Watch</translation>
    </message>
    <message>
        <source>From the beginning</source>
        <translation>From the beginning</translation>
    </message>
    <message>
        <source>In my list</source>
        <translation>In my list</translation>
    </message>
    <message>
        <source>To my list</source>
        <translation>To my list</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>FilmCatalogue</name>
    <message>
        <source>Northern Light</source>
        <translation>Northern Light</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Adventure</translation>
    </message>
    <message>
        <source>Two sisters walk beyond the last village to see the sky burn green.</source>
        <translation>Two sisters walk beyond the last village to see the sky burn green.</translation>
    </message>
    <message>
        <source>The Keeper</source>
        <translation>The Keeper</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Drama</translation>
    </message>
    <message>
        <source>A lamp has been lit every night for a century. Tonight nobody comes to light it.</source>
        <translation>A lamp has been lit every night for a century. Tonight nobody comes to light it.</translation>
    </message>
    <message>
        <source>Silent Orbit</source>
        <translation>Silent Orbit</translation>
    </message>
    <message>
        <source>Science fiction</source>
        <translation>Science fiction</translation>
    </message>
    <message>
        <source>The crew of a survey ship hears its own voices, sent back from the rings.</source>
        <translation>The crew of a survey ship hears its own voices, sent back from the rings.</translation>
    </message>
    <message>
        <source>Sea of Sand</source>
        <translation>Sea of Sand</translation>
    </message>
    <message>
        <source>A map, a camel and eleven days of water: a race to a well that may not exist.</source>
        <translation>A map, a camel and eleven days of water: a race to a well that may not exist.</translation>
    </message>
    <message>
        <source>Night Highway</source>
        <translation>Night Highway</translation>
    </message>
    <message>
        <source>On a road that never ends, a courier carries something that wants to arrive.</source>
        <translation>On a road that never ends, a courier carries something that wants to arrive.</translation>
    </message>
    <message>
        <source>The House in the Snow</source>
        <translation>The House in the Snow</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Family</translation>
    </message>
    <message>
        <source>Snowed in for a week, three generations learn to play one game of cards.</source>
        <translation>Snowed in for a week, three generations learn to play one game of cards.</translation>
    </message>
    <message>
        <source>City of Windows</source>
        <translation>City of Windows</translation>
    </message>
    <message>
        <source>Forty flats, one evening, and a piano that everyone in the house can hear.</source>
        <translation>Forty flats, one evening, and a piano that everyone in the house can hear.</translation>
    </message>
    <message>
        <source>Five Days in the Sky</source>
        <translation>Five Days in the Sky</translation>
    </message>
    <message>
        <source>A boy, his grandmother and a balloon that refuses to come down.</source>
        <translation>A boy, his grandmother and a balloon that refuses to come down.</translation>
    </message>
    <message>
        <source>Rain at Nine</source>
        <translation>Rain at Nine</translation>
    </message>
    <message>
        <source>An inspector waits under the lamp where, ten years ago, a case was closed.</source>
        <translation>An inspector waits under the lamp where, ten years ago, a case was closed.</translation>
    </message>
    <message>
        <source>Beyond the Pines</source>
        <translation>Beyond the Pines</translation>
    </message>
    <message>
        <source>A forester follows tracks that lead, every morning, one valley further.</source>
        <translation>A forester follows tracks that lead, every morning, one valley further.</translation>
    </message>
    <message>
        <source>Under the Mountain</source>
        <translation>Under the Mountain</translation>
    </message>
    <message>
        <source>What the geologists woke up does not want to go back to sleep.</source>
        <translation>What the geologists woke up does not want to go back to sleep.</translation>
    </message>
    <message>
        <source>The Last Regatta</source>
        <translation>The Last Regatta</translation>
    </message>
    <message>
        <source>An old boat, a young crew, and one summer to cross the bay.</source>
        <translation>An old boat, a young crew, and one summer to cross the bay.</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Quiet</translation>
    </message>
    <message>
        <source>Distant</source>
        <translation>Distant</translation>
    </message>
    <message>
        <source>Golden</source>
        <translation>Golden</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>Winter</source>
        <translation>Winter</translation>
    </message>
    <message>
        <source>Wild</source>
        <translation>Wild</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Old</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Bright</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Lost</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Evening</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Eternal</source>
        <translation>Eternal</translation>
    </message>
    <message>
        <source>Strange</source>
        <translation>Strange</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>Stone</translation>
    </message>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Shore</source>
        <translation>Shore</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Garden</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Bridge</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>Island</translation>
    </message>
    <message>
        <source>Road</source>
        <translation>Road</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Echo</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>Harbour</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Forest</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Morning</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Train</source>
        <translation>Train</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>Snow</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Fire</translation>
    </message>
    <message>
        <source>Dream</source>
        <translation>Dream</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Town</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Ocean</translation>
    </message>
    <message>
        <source>Castle</source>
        <translation>Castle</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>Guest</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>Waltz</source>
        <translation>Waltz</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>House</source>
        <translation>House</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>adjective and noun</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1  ·  %2  ·  %3 min</source>
        <translation>%1  ·  %2  ·  %3 min</translation>
    </message>
    <message>
        <source>Ada and Mirja have not spoken since their father left them one sledge and two opposite maps. When the radio of the last village falls silent, they set out together, because neither would let the other go first. For nine nights the sky stays black. On the tenth the dogs stop, the snow begins to hum, and the sisters must decide whose map was right.</source>
        <translation>Ada and Mirja have not spoken since their father left them one sledge and two opposite maps. When the radio of the last village falls silent, they set out together, because neither would let the other go first. For nine nights the sky stays black. On the tenth the dogs stop, the snow begins to hum, and the sisters must decide whose map was right.</translation>
    </message>
    <message>
        <source>Old Tomas has counted every ship that passed the ninth rock, and forgotten none of them. The evening he does not climb the stairs, a letter lies in the empty harbour office: the light is no longer needed. A girl who sells fish, a retired pilot and a postman afraid of water row out to do his work for one night, in the worst storm of the year.</source>
        <translation>Old Tomas has counted every ship that passed the ninth rock, and forgotten none of them. The evening he does not climb the stairs, a letter lies in the empty harbour office: the light is no longer needed. A girl who sells fish, a retired pilot and a postman afraid of water row out to do his work for one night, in the worst storm of the year.</translation>
    </message>
    <message>
        <source>The survey was to last eleven months. In the fourth, the antenna catches a conversation that nobody on board has held yet: the same voices, the same jokes, and an argument about a door. The commander forbids everyone to listen further. The engineer listens all the same, for in the last sentence someone says her name and asks her not to open it.</source>
        <translation>The survey was to last eleven months. In the fourth, the antenna catches a conversation that nobody on board has held yet: the same voices, the same jokes, and an argument about a door. The commander forbids everyone to listen further. The engineer listens all the same, for in the last sentence someone says her name and asks her not to open it.</translation>
    </message>
    <message>
        <source>A mapmaker without money, a driver without a licence and a camel without manners share one canteen and one secret. Behind them comes a rich collector with three trucks and all the water in the world. The well is marked on the map in red ink. Nobody has asked yet why the ink is still wet.</source>
        <translation>A mapmaker without money, a driver without a licence and a camel without manners share one canteen and one secret. Behind them comes a rich collector with three trucks and all the water in the world. The well is marked on the map in red ink. Nobody has asked yet why the ink is still wet.</translation>
    </message>
    <message>
        <source>The rules are simple: never stop before dawn, never turn round, never look into the box. Rui has kept them for six years, on a road whose signs count upwards without end. Tonight the box knocks from the inside, politely, three times. And in the mirror, for the first time ever, there are lights.</source>
        <translation>The rules are simple: never stop before dawn, never turn round, never look into the box. Rui has kept them for six years, on a road whose signs count upwards without end. Tonight the box knocks from the inside, politely, three times. And in the mirror, for the first time ever, there are lights.</translation>
    </message>
    <message>
        <source>The game was invented by a great-grandfather, and its rules fill a notebook that nobody has ever read to the end. With the road closed and the telephone dead, the family begins to read. Page by page, old debts, old recipes and one old quarrel turn out to be rules as well. By Sunday everyone has cheated, and nobody wants to win.</source>
        <translation>The game was invented by a great-grandfather, and its rules fill a notebook that nobody has ever read to the end. With the road closed and the telephone dead, the family begins to read. Page by page, old debts, old recipes and one old quarrel turn out to be rules as well. By Sunday everyone has cheated, and nobody wants to win.</translation>
    </message>
    <message>
        <source>Each evening at eight somebody plays the same waltz and stops before the last bar. A nurse comes home to it, a boy does his sums to it, a couple quarrels in its time. When one night there is no music, forty doors open on the stairs. The neighbours, who have never met, go looking for a pianist that no list of tenants knows.</source>
        <translation>Each evening at eight somebody plays the same waltz and stops before the last bar. A nurse comes home to it, a boy does his sums to it, a couple quarrels in its time. When one night there is no music, forty doors open on the stairs. The neighbours, who have never met, go looking for a pianist that no list of tenants knows.</translation>
    </message>
    <message>
        <source>Grandmother Olga won the flight in a crossword, and meant to be home for supper. But the burner sticks, the wind turns, and below them pass a fair, a border, two weddings and a very surprised herd of cows. Five days are enough to learn to steer by smell, to land a sandwich on a church tower, and to say what one never says on the ground.</source>
        <translation>Grandmother Olga won the flight in a crossword, and meant to be home for supper. But the burner sticks, the wind turns, and below them pass a fair, a border, two weddings and a very surprised herd of cows. Five days are enough to learn to steer by smell, to land a sandwich on a church tower, and to say what one never says on the ground.</translation>
    </message>
    <message>
        <source>Inspector Marek closed the case, received a medal and never slept well again. Now a woman who died that night has sent him a ticket for the last tram. He takes his old coat, his older notebook and a place under the lamp. It begins to rain at nine, exactly as it did then. Someone across the street is taking notes about him.</source>
        <translation>Inspector Marek closed the case, received a medal and never slept well again. Now a woman who died that night has sent him a ticket for the last tram. He takes his old coat, his older notebook and a place under the lamp. It begins to rain at nine, exactly as it did then. Someone across the street is taking notes about him.</translation>
    </message>
    <message>
        <source>The tracks are those of a bear, but they walk in a straight line. Each morning they begin at the forester&apos;s own door. He follows them past the last felled tree, past the last name on the map, and finds that someone has been mending the forest behind his back: a fence here, a nest there, and a bridge that was not needed until now.</source>
        <translation>The tracks are those of a bear, but they walk in a straight line. Each morning they begin at the forester&apos;s own door. He follows them past the last felled tree, past the last name on the map, and finds that someone has been mending the forest behind his back: a fence here, a nest there, and a bridge that was not needed until now.</translation>
    </message>
    <message>
        <source>The drill goes down eleven kilometres and comes up clean, polished, and warm as a hand. By evening every clock of the station runs backwards by a second an hour. The youngest of the team thinks that the mountain is trying to say something. The oldest knows that it did so once before, and that nobody was left to write it down.</source>
        <translation>The drill goes down eleven kilometres and comes up clean, polished, and warm as a hand. By evening every clock of the station runs backwards by a second an hour. The youngest of the team thinks that the mountain is trying to say something. The oldest knows that it did so once before, and that nobody was left to write it down.</translation>
    </message>
    <message>
        <source>The Gull has lost every race since she was built, and this summer is to be her last. Then the sailing school is sold, and its pupils take the boat, the coach and the coach&apos;s dog across the bay to ask for it back. They have no engine, one sail and a wager with the richest man on the coast. The wind, for once, is on their side.</source>
        <translation>The Gull has lost every race since she was built, and this summer is to be her last. Then the sailing school is sold, and its pupils take the boat, the coach and the coach&apos;s dog across the bay to ask for it back. They have no engine, one sail and a wager with the richest man on the coast. The wind, for once, is on their side.</translation>
    </message>
    <message>
        <source>The film was made in one summer with a crew of nineteen. Every picture of the weather is real: the director waited for it, sometimes for weeks, and let the actors wait as well. The music was recorded in an empty water tower, whose echo lasts as long as a breath.</source>
        <translation>The film was made in one summer with a crew of nineteen. Every picture of the weather is real: the director waited for it, sometimes for weeks, and let the actors wait as well. The music was recorded in an empty water tower, whose echo lasts as long as a breath.</translation>
    </message>
    <message>
        <source>The script lay in a drawer for twelve years, until a reader took it for a diary and asked how the story went on. Most of the parts are played by people who had never stood before a camera. What they say at the table in the middle of the film, they made up themselves.</source>
        <translation>The script lay in a drawer for twelve years, until a reader took it for a diary and asked how the story went on. Most of the parts are played by people who had never stood before a camera. What they say at the table in the middle of the film, they made up themselves.</translation>
    </message>
    <message>
        <source>Nothing in this film was drawn by a computer. The models are up to six metres long and hang today in the foyer of the studio. For the longest scene, which has no cut, the camera travelled on the rails of a closed mine, pushed by eight students of physics.</source>
        <translation>Nothing in this film was drawn by a computer. The models are up to six metres long and hang today in the foyer of the studio. For the longest scene, which has no cut, the camera travelled on the rails of a closed mine, pushed by eight students of physics.</translation>
    </message>
    <message>
        <source>Vera Lindqvist</source>
        <translation>Vera Lindqvist</translation>
    </message>
    <message>
        <source>Anton Belov</source>
        <translation>Anton Belov</translation>
    </message>
    <message>
        <source>Mina Okafor</source>
        <translation>Mina Okafor</translation>
    </message>
    <message>
        <source>Jan Kovar</source>
        <translation>Jan Kovar</translation>
    </message>
    <message>
        <source>Lucia Ferrante</source>
        <translation>Lucia Ferrante</translation>
    </message>
    <message>
        <source>Pavel Sorokin</source>
        <translation>Pavel Sorokin</translation>
    </message>
    <message>
        <source>Hanna Weiss</source>
        <translation>Hanna Weiss</translation>
    </message>
    <message>
        <source>Diego Marin</source>
        <translation>Diego Marin</translation>
    </message>
    <message>
        <source>Irina Volkova</source>
        <translation>Irina Volkova</translation>
    </message>
    <message>
        <source>Tom Achterberg</source>
        <translation>Tom Achterberg</translation>
    </message>
    <message>
        <source>Sofia Nilsen</source>
        <translation>Sofia Nilsen</translation>
    </message>
    <message>
        <source>Director: %1</source>
        <translation>Director: %1</translation>
    </message>
    <message>
        <source>Starring: %1, %2, %3</source>
        <translation>Starring: %1, %2, %3</translation>
    </message>
    <message>
        <source>Music: %1</source>
        <translation>Music: %1</translation>
    </message>
    <message>
        <source>Sound: English, Russian</source>
        <translation>Sound: English, Russian</translation>
    </message>
    <message>
        <source>Subtitles: English, Russian, for the hard of hearing</source>
        <translation>Subtitles: English, Russian, for the hard of hearing</translation>
    </message>
</context>
<context>
    <name>Films</name>
    <message>
        <source>The Last Lamp</source>
        <translation>The Last Lamp</translation>
    </message>
    <message>
        <source>First Launch</source>
        <translation>First Launch</translation>
    </message>
    <message>
        <source>Deep Song</source>
        <translation>Deep Song</translation>
    </message>
    <message>
        <source>Amber Forest</source>
        <translation>Amber Forest</translation>
    </message>
    <message>
        <source>Above the Hills</source>
        <translation>Above the Hills</translation>
    </message>
    <message>
        <source>Evening Express</source>
        <translation>Evening Express</translation>
    </message>
    <message>
        <source>Far Island</source>
        <translation>Far Island</translation>
    </message>
    <message>
        <source>Knight’s Move</source>
        <translation>Knight’s Move</translation>
    </message>
</context>
<context>
    <name>GridPage</name>
    <message>
        <source>ScrolledGridView: a thousand tiles, of which those in sight exist</source>
        <translation>ScrolledGridView: a thousand tiles, of which those in sight exist</translation>
    </message>
    <message>
        <source>current: %1 of %2</source>
        <translation>current: %1 of %2</translation>
    </message>
    <message>
        <source>tiles made: %1</source>
        <translation>tiles made: %1</translation>
    </message>
    <message>
        <source>OK chooses</source>
        <translation>OK chooses</translation>
    </message>
    <message>
        <source>chosen: %1</source>
        <translation>chosen: %1</translation>
    </message>
</context>
<context>
    <name>GridZone</name>
    <message>
        <source>All films</source>
        <translation>All films</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
</context>
<context>
    <name>HelpersPage</name>
    <message>
        <source>Helpers.imageUrl tells in the address how a picture is wanted; a source makes it so</source>
        <translation>Helpers.imageUrl tells in the address how a picture is wanted; a source makes it so</translation>
    </message>
    <message>
        <source>the address</source>
        <translation>the address</translation>
    </message>
    <message>
        <source>made to measure: %1 × %2</source>
        <translation>made to measure: %1 × %2</translation>
    </message>
    <message>
        <source>without wishes, shown small</source>
        <translation>without wishes, shown small</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>A product&apos;s home screen, made of the module&apos;s controls: OK opens it</source>
        <translation>A product&apos;s home screen, made of the module&apos;s controls: OK opens it</translation>
    </message>
</context>
<context>
    <name>HomeShelves</name>
    <message>
        <source>New this week</source>
        <translation>New this week</translation>
    </message>
    <message>
        <source>Continue watching</source>
        <translation>Continue watching</translation>
    </message>
    <message>
        <source>Top 10 today</source>
        <translation>Top 10 today</translation>
    </message>
    <message>
        <source>For the whole family</source>
        <translation>For the whole family</translation>
    </message>
    <message>
        <source>Far from home</source>
        <translation>Far from home</translation>
    </message>
    <message>
        <source>For a rainy evening</source>
        <translation>For a rainy evening</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Popular</translation>
    </message>
    <message>
        <source>Everybody watches</source>
        <translation>Everybody watches</translation>
    </message>
    <message>
        <source>Critics recommend</source>
        <translation>Critics recommend</translation>
    </message>
    <message>
        <source>Hidden treasures</source>
        <translation>Hidden treasures</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Drama</translation>
    </message>
    <message>
        <source>Strong characters</source>
        <translation>Strong characters</translation>
    </message>
    <message>
        <source>True stories</source>
        <translation>True stories</translation>
    </message>
    <message>
        <source>Family secrets</source>
        <translation>Family secrets</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Adventure</translation>
    </message>
    <message>
        <source>Over land and sea</source>
        <translation>Over land and sea</translation>
    </message>
    <message>
        <source>Against the clock</source>
        <translation>Against the clock</translation>
    </message>
    <message>
        <source>Under open skies</source>
        <translation>Under open skies</translation>
    </message>
    <message>
        <source>Science fiction</source>
        <translation>Science fiction</translation>
    </message>
    <message>
        <source>Other worlds</source>
        <translation>Other worlds</translation>
    </message>
    <message>
        <source>The day after tomorrow</source>
        <translation>The day after tomorrow</translation>
    </message>
    <message>
        <source>Machines that think</source>
        <translation>Machines that think</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Family</translation>
    </message>
    <message>
        <source>Together on the sofa</source>
        <translation>Together on the sofa</translation>
    </message>
    <message>
        <source>For the youngest</source>
        <translation>For the youngest</translation>
    </message>
    <message>
        <source>A good laugh</source>
        <translation>A good laugh</translation>
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
    <name>LargeTextPage</name>
    <message>
        <source>A book of a megabyte: up and down scroll, OK goes to the other end</source>
        <translation>A book of a megabyte: up and down scroll, OK goes to the other end</translation>
    </message>
    <message>
        <source>%1 characters, offset %2 of %3</source>
        <translation>%1 characters, offset %2 of %3</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>LayoutSpacer keeps items apart; MediaBlock is what blocks of posters build on</source>
        <translation>LayoutSpacer keeps items apart; MediaBlock is what blocks of posters build on</translation>
    </message>
    <message>
        <source>RowLayout, fills — OK fixes</source>
        <translation>RowLayout, fills — OK fixes</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>ColumnLayout, fills</source>
        <translation>ColumnLayout, fills</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Sign out</translation>
    </message>
    <message>
        <source>Tonight, itemsHaveTitles: %1</source>
        <translation>Tonight, itemsHaveTitles: %1</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>News</source>
        <translation>News</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>Science</source>
        <translation>Science</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Travel</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Football</source>
        <translation>Football</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Theatre</source>
        <translation>Theatre</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Children</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>Kitchen</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Weather</translation>
    </message>
    <message>
        <source>ScrolledListView and Highlight: at an edge the list scrolls after the highlight</source>
        <translation>ScrolledListView and Highlight: at an edge the list scrolls after the highlight</translation>
    </message>
    <message>
        <source>chosen film: %1</source>
        <translation>chosen film: %1</translation>
    </message>
    <message>
        <source>OK for the next duration</source>
        <translation>OK for the next duration</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
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
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in itself.</extracomment>
        <translation>English</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controls</translation>
    </message>
    <message>
        <source>A button with a title, a subtitle and two icons</source>
        <translation>A button with a title, a subtitle and two icons</translation>
    </message>
    <message>
        <source>A box to check, with a title beside it</source>
        <translation>A box to check, with a title beside it</translation>
    </message>
    <message>
        <source>A line of a main menu: icon, text and picture</source>
        <translation>A line of a main menu: icon, text and picture</translation>
    </message>
    <message>
        <source>One tab of a bar</source>
        <translation>One tab of a bar</translation>
    </message>
    <message>
        <source>One key of the on-screen keyboard</source>
        <translation>One key of the on-screen keyboard</translation>
    </message>
    <message>
        <source>The on-screen keyboard and its layouts</source>
        <translation>The on-screen keyboard and its layouts</translation>
    </message>
    <message>
        <source>A line of text that the remote edits</source>
        <translation>A line of text that the remote edits</translation>
    </message>
    <message>
        <source>Plain text in one colour and font</source>
        <translation>Plain text in one colour and font</translation>
    </message>
    <message>
        <source>A window onto the middle of an image</source>
        <translation>A window onto the middle of an image</translation>
    </message>
    <message>
        <source>An image file in one colour</source>
        <translation>An image file in one colour</translation>
    </message>
    <message>
        <source>Gives an image another colour</source>
        <translation>Gives an image another colour</translation>
    </message>
    <message>
        <source>A filled box with a border</source>
        <translation>A filled box with a border</translation>
    </message>
    <message>
        <source>An image, drawn without OpenGL</source>
        <translation>An image, drawn without OpenGL</translation>
    </message>
    <message>
        <source>What a list scrolls after</source>
        <translation>What a list scrolls after</translation>
    </message>
    <message>
        <source>Room in a layout</source>
        <translation>Room in a layout</translation>
    </message>
    <message>
        <source>What blocks of posters have in common</source>
        <translation>What blocks of posters have in common</translation>
    </message>
    <message>
        <source>A grid given by its elements and gaps</source>
        <translation>A grid given by its elements and gaps</translation>
    </message>
    <message>
        <source>A list that keeps its current item in sight</source>
        <translation>A list that keeps its current item in sight</translation>
    </message>
    <message>
        <source>Waiting, told by strips of frames and two texts</source>
        <translation>Waiting, told by strips of frames and two texts</translation>
    </message>
    <message>
        <source>The speed of winding, three arrows and a text</source>
        <translation>The speed of winding, three arrows and a text</translation>
    </message>
    <message>
        <source>An arc that turns on a ring</source>
        <translation>An arc that turns on a ring</translation>
    </message>
    <message>
        <source>Curves for animations</source>
        <translation>Curves for animations</translation>
    </message>
    <message>
        <source>Key layouts and enumerations that all share</source>
        <translation>Key layouts and enumerations that all share</translation>
    </message>
    <message>
        <source>The name and the version of the module</source>
        <translation>The name and the version of the module</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Try</translation>
    </message>
    <message>
        <source>States</source>
        <translation>States</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>A long text that scrolls</source>
        <translation>A long text that scrolls</translation>
    </message>
    <message>
        <source>A number in large outlined digits</source>
        <translation>A number in large outlined digits</translation>
    </message>
    <message>
        <source>An area filled with any brush</source>
        <translation>An area filled with any brush</translation>
    </message>
    <message>
        <source>How far a view is scrolled</source>
        <translation>How far a view is scrolled</translation>
    </message>
    <message>
        <source>Addresses of pictures made to measure</source>
        <translation>Addresses of pictures made to measure</translation>
    </message>
</context>
<context>
    <name>MainMenuButtonPage</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Anna</source>
        <translation>Anna</translation>
    </message>
    <message>
        <source>What to watch tonight</source>
        <translation>What to watch tonight</translation>
    </message>
    <message>
        <source>Eight films, one for every evening</source>
        <translation>Eight films, one for every evening</translation>
    </message>
    <message>
        <source>On all channels, now</source>
        <translation>On all channels, now</translation>
    </message>
    <message>
        <source>Where Anna stopped watching</source>
        <translation>Where Anna stopped watching</translation>
    </message>
    <message>
        <source>Icon, text and picture; only the background grows, so that focus moves nothing</source>
        <translation>Icon, text and picture; only the background grows, so that focus moves nothing</translation>
    </message>
    <message>
        <source>autoExclusive — OK checks; focus wins over checked</source>
        <translation>autoExclusive — OK checks; focus wins over checked</translation>
    </message>
</context>
<context>
    <name>MenuZone</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>All films</source>
        <translation>All films</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
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
    <name>RewindIconPage</name>
    <message>
        <source>The speed of winding: left and right change it, OK plays on</source>
        <translation>The speed of winding: left and right change it, OK plays on</translation>
    </message>
</context>
<context>
    <name>ScrollBarPage</name>
    <message>
        <source>How far a view is scrolled: up and down scroll, OK goes to the other end</source>
        <translation>How far a view is scrolled: up and down scroll, OK goes to the other end</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Channel %1</translation>
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
    <name>SettingsZone</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Smooth scrolling and colours</source>
        <translation>Smooth scrolling and colours</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Large text</translation>
    </message>
    <message>
        <source>Titles below the pictures</source>
        <translation>Titles below the pictures</translation>
    </message>
</context>
<context>
    <name>SpinnerIndicatorPage</name>
    <message>
        <source>A ring with an arc that turns, grows and shrinks</source>
        <translation>A ring with an arc that turns, grows and shrinks</translation>
    </message>
    <message>
        <source>%1 × %1, lineWidth %2</source>
        <translation>%1 × %1, lineWidth %2</translation>
    </message>
    <message>
        <source>Loading the programme guide. OK changes the lines and colours above.</source>
        <translation>Loading the programme guide. OK changes the lines and colours above.</translation>
    </message>
</context>
<context>
    <name>TabButtonPage</name>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Tomorrow</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>The best of the week</source>
        <translation>The best of the week</translation>
    </message>
    <message>
        <source>Exclusive tabs; a long text widens its tab</source>
        <translation>Exclusive tabs; a long text widens its tab</translation>
    </message>
    <message>
        <source>checked wins</source>
        <translation>checked wins</translation>
    </message>
    <message>
        <source>minimumWidth: %1 — OK checks</source>
        <translation>minimumWidth: %1 — OK checks</translation>
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
    <name>TopNumberPage</name>
    <message>
        <source>Outlined numbers: filled, or cut out by an invalid color — OK switches</source>
        <translation>Outlined numbers: filled, or cut out by an invalid color — OK switches</translation>
    </message>
</context>
<context>
    <name>TryPage</name>
    <message>
        <source>change</source>
        <translation>change</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
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
