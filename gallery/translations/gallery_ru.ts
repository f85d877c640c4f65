<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BrushAreaPage</name>
    <message>
        <source>Areas filled with brushes that are made in C++</source>
        <translation>Области, залитые кистями из C++</translation>
    </message>
    <message>
        <source>pattern: diagonals</source>
        <translation>узор: штриховка</translation>
    </message>
    <message>
        <source>pattern: crosses</source>
        <translation>узор: клетка</translation>
    </message>
    <message>
        <source>texture</source>
        <translation>текстура</translation>
    </message>
    <message>
        <source>linear gradient</source>
        <translation>линейный градиент</translation>
    </message>
    <message>
        <source>radial gradient</source>
        <translation>радиальный градиент</translation>
    </message>
    <message>
        <source>conical gradient</source>
        <translation>конический градиент</translation>
    </message>
    <message>
        <source>OK on a brush paints the wide area with it</source>
        <translation>OK на кисти заливает ею широкую область</translation>
    </message>
</context>
<context>
    <name>BusyIndicatorPage</name>
    <message>
        <source>Looking for channels</source>
        <translation>Поиск каналов</translation>
    </message>
    <message>
        <source>This takes some minutes; the remote control can be laid aside</source>
        <translation>Это займёт несколько минут, пульт можно отложить</translation>
    </message>
    <message>
        <source>One moment, please</source>
        <translation>Одну минуту</translation>
    </message>
    <message>
        <source>Two strips of square frames, played one after the other</source>
        <translation>Две ленты квадратных кадров, одна за другой</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>frame %1 of %2</source>
        <translation>кадр %1 из %2</translation>
    </message>
    <message>
        <source>long</source>
        <translation>длинное</translation>
    </message>
    <message>
        <source>short</source>
        <translation>короткое</translation>
    </message>
</context>
<context>
    <name>BusyZone</name>
    <message>
        <source>One moment, the film is being prepared</source>
        <translation>Минуту, фильм готовится к показу</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Four states, two ways to find the width, titles cut to the room left</source>
        <translation>Четыре состояния, два способа выбрать ширину, обрезка длинных названий</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>isFixedWidth: true, animated colours — OK toggles checked</source>
        <translation>isFixedWidth: true, плавная смена цветов — OK меняет checked</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>Add the programme “Northern Lights” to favourites</source>
        <translation>Добавить передачу «Северное сияние» в избранное</translation>
    </message>
    <message>
        <source>isFixedWidth: false — as wide as the texts</source>
        <translation>isFixedWidth: false — по ширине текста</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Record the programme</source>
        <translation>Записать передачу</translation>
    </message>
    <message>
        <source>All episodes</source>
        <translation>Все серии</translation>
    </message>
    <message>
        <source>subtitleText, both icons</source>
        <translation>subtitleText, оба значка</translation>
    </message>
    <message>
        <source>“Cinema” package</source>
        <translation>Подписка «Кино»</translation>
    </message>
    <message>
        <source>299 ₽ a month</source>
        <translation>299 ₽ в месяц</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Surround, all the loudspeakers</source>
        <translation>Объёмный, из всех колонок</translation>
    </message>
</context>
<context>
    <name>CheckBoxPage</name>
    <message>
        <source>A title wraps beside its box; the focus frame is around the box alone</source>
        <translation>Название переносится; рамка фокуса — только вокруг флажка</translation>
    </message>
    <message>
        <source>Play the next episode</source>
        <translation>Включать следующую серию</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Загрузки</translation>
    </message>
    <message>
        <source>Subtitles in the language of the menus whenever a programme has them</source>
        <translation>Субтитры на языке меню, если они есть у передачи</translation>
    </message>
    <message>
        <source>Only at night, and not over mobile networks</source>
        <translation>Только ночью и не через мобильную сеть</translation>
    </message>
    <message>
        <source>A round box, forceRounding</source>
        <translation>Круглый флажок, forceRounding</translation>
    </message>
    <message>
        <source>Not with your subscription</source>
        <translation>Нет в вашей подписке</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Each with its properties, its states, and the code that makes it</source>
        <translation>Свойства, состояния и код каждого из них</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Кнопки</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Ввод</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Картинки</translation>
    </message>
    <message>
        <source>Lists and layout</source>
        <translation>Раскладка</translation>
    </message>
    <message>
        <source>Indicators</source>
        <translation>Индикаторы</translation>
    </message>
    <message>
        <source>Vocabulary</source>
        <translation>Словарь</translation>
    </message>
</context>
<context>
    <name>DetailsZone</name>
    <message>
        <source>Watch</source>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>From the beginning</source>
        <translation>Сначала</translation>
    </message>
    <message>
        <source>In my list</source>
        <translation>В моём списке</translation>
    </message>
    <message>
        <source>To my list</source>
        <translation>В мой список</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
</context>
<context>
    <name>FilmCatalogue</name>
    <message>
        <source>Northern Light</source>
        <translation>Северный свет</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Приключения</translation>
    </message>
    <message>
        <source>Two sisters walk beyond the last village to see the sky burn green.</source>
        <translation>Две сестры идут за последнюю деревню, чтобы увидеть, как небо горит зелёным.</translation>
    </message>
    <message>
        <source>The Keeper</source>
        <translation>Смотритель</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Драма</translation>
    </message>
    <message>
        <source>A lamp has been lit every night for a century. Tonight nobody comes to light it.</source>
        <translation>Сто лет лампу зажигали каждую ночь. Сегодня зажечь её некому.</translation>
    </message>
    <message>
        <source>Silent Orbit</source>
        <translation>Тихая орбита</translation>
    </message>
    <message>
        <source>Science fiction</source>
        <translation>Фантастика</translation>
    </message>
    <message>
        <source>The crew of a survey ship hears its own voices, sent back from the rings.</source>
        <translation>Экипаж разведчика слышит собственные голоса: их возвращают кольца планеты.</translation>
    </message>
    <message>
        <source>Sea of Sand</source>
        <translation>Море песка</translation>
    </message>
    <message>
        <source>A map, a camel and eleven days of water: a race to a well that may not exist.</source>
        <translation>Карта, верблюд и воды на одиннадцать дней: путь к колодцу, которого может и не быть.</translation>
    </message>
    <message>
        <source>Night Highway</source>
        <translation>Ночное шоссе</translation>
    </message>
    <message>
        <source>On a road that never ends, a courier carries something that wants to arrive.</source>
        <translation>По бесконечной дороге курьер везёт то, что само хочет доехать.</translation>
    </message>
    <message>
        <source>The House in the Snow</source>
        <translation>Дом в снегу</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Семейное</translation>
    </message>
    <message>
        <source>Snowed in for a week, three generations learn to play one game of cards.</source>
        <translation>Неделя под снегом: три поколения учатся играть в одну игру.</translation>
    </message>
    <message>
        <source>City of Windows</source>
        <translation>Город окон</translation>
    </message>
    <message>
        <source>Forty flats, one evening, and a piano that everyone in the house can hear.</source>
        <translation>Сорок квартир, один вечер и рояль, который слышит весь дом.</translation>
    </message>
    <message>
        <source>Five Days in the Sky</source>
        <translation>Пять дней в небе</translation>
    </message>
    <message>
        <source>A boy, his grandmother and a balloon that refuses to come down.</source>
        <translation>Мальчик, его бабушка и воздушный шар, который не хочет спускаться.</translation>
    </message>
    <message>
        <source>Rain at Nine</source>
        <translation>Дождь в девять</translation>
    </message>
    <message>
        <source>An inspector waits under the lamp where, ten years ago, a case was closed.</source>
        <translation>Следователь ждёт под фонарём, где десять лет назад закрыли дело.</translation>
    </message>
    <message>
        <source>Beyond the Pines</source>
        <translation>За соснами</translation>
    </message>
    <message>
        <source>A forester follows tracks that lead, every morning, one valley further.</source>
        <translation>Лесник идёт по следам, которые каждое утро ведут в следующую долину.</translation>
    </message>
    <message>
        <source>Under the Mountain</source>
        <translation>Под горой</translation>
    </message>
    <message>
        <source>What the geologists woke up does not want to go back to sleep.</source>
        <translation>То, что разбудили геологи, не хочет засыпать снова.</translation>
    </message>
    <message>
        <source>The Last Regatta</source>
        <translation>Последняя регата</translation>
    </message>
    <message>
        <source>An old boat, a young crew, and one summer to cross the bay.</source>
        <translation>Старая яхта, молодая команда и одно лето, чтобы пересечь залив.</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Тихий</translation>
    </message>
    <message>
        <source>Distant</source>
        <translation>Далёкий</translation>
    </message>
    <message>
        <source>Golden</source>
        <translation>Золотой</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Скрытый</translation>
    </message>
    <message>
        <source>Winter</source>
        <translation>Зимний</translation>
    </message>
    <message>
        <source>Wild</source>
        <translation>Дикий</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Старый</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Яркий</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Тайный</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Забытый</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Вечерний</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открытый</translation>
    </message>
    <message>
        <source>Eternal</source>
        <translation>Вечный</translation>
    </message>
    <message>
        <source>Strange</source>
        <translation>Странный</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Пустой</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высокий</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Тёплый</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>Каменный</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Shore</source>
        <translation>берег</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>сад</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>ветер</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>мост</translation>
    </message>
    <message>
        <source>Island</source>
        <translation>остров</translation>
    </message>
    <message>
        <source>Road</source>
        <translation>путь</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>отзвук</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>причал</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>лес</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>рассвет</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>вокзал</translation>
    </message>
    <message>
        <source>Train</source>
        <translation>поезд</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>снег</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>огонь</translation>
    </message>
    <message>
        <source>Dream</source>
        <translation>сон</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>город</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>океан</translation>
    </message>
    <message>
        <source>Castle</source>
        <translation>замок</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>гость</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>голос</translation>
    </message>
    <message>
        <source>Waltz</source>
        <translation>вальс</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>закат</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>след</translation>
    </message>
    <message>
        <source>House</source>
        <translation>дом</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>горизонт</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>adjective and noun</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1  ·  %2  ·  %3 min</source>
        <translation>%1  ·  %2  ·  %3 мин</translation>
    </message>
    <message>
        <source>Ada and Mirja have not spoken since their father left them one sledge and two opposite maps. When the radio of the last village falls silent, they set out together, because neither would let the other go first. For nine nights the sky stays black. On the tenth the dogs stop, the snow begins to hum, and the sisters must decide whose map was right.</source>
        <translation>Ада и Мирья не разговаривают с тех пор, как отец оставил им одни сани и две разные карты. Когда в последней деревне замолкает радио, сёстры отправляются в путь вместе: ни одна не хочет уступить первенство. Девять ночей небо остаётся чёрным. На десятую собаки останавливаются, снег начинает гудеть, и пора решить, чья карта была верной.</translation>
    </message>
    <message>
        <source>Old Tomas has counted every ship that passed the ninth rock, and forgotten none of them. The evening he does not climb the stairs, a letter lies in the empty harbour office: the light is no longer needed. A girl who sells fish, a retired pilot and a postman afraid of water row out to do his work for one night, in the worst storm of the year.</source>
        <translation>Старый Томас сосчитал все корабли, прошедшие мимо Девятой скалы, и не забыл ни одного. В тот вечер, когда он не поднимается по лестнице, в пустой конторе порта лежит письмо: маяк больше не нужен. Торговка рыбой, лоцман на пенсии и почтальон, который боится воды, плывут к скале, чтобы одну ночь сделать его работу. Шторма сильнее в этом году не было.</translation>
    </message>
    <message>
        <source>The survey was to last eleven months. In the fourth, the antenna catches a conversation that nobody on board has held yet: the same voices, the same jokes, and an argument about a door. The commander forbids everyone to listen further. The engineer listens all the same, for in the last sentence someone says her name and asks her not to open it.</source>
        <translation>Экспедиция должна была длиться одиннадцать месяцев. На четвёртом антенна ловит разговор, которого на борту ещё не было: те же голоса, те же шутки и спор о какой-то двери. Командир запрещает слушать дальше. Бортинженер всё-таки слушает: в последней фразе кто-то называет её имя и просит не открывать.</translation>
    </message>
    <message>
        <source>A mapmaker without money, a driver without a licence and a camel without manners share one canteen and one secret. Behind them comes a rich collector with three trucks and all the water in the world. The well is marked on the map in red ink. Nobody has asked yet why the ink is still wet.</source>
        <translation>Картограф без денег, водитель без прав и верблюд без воспитания делят одну флягу и одну тайну. За ними едет богатый коллекционер: у него три грузовика и сколько угодно воды. Колодец отмечен на карте красными чернилами. И никто ещё не спросил, почему чернила не высохли.</translation>
    </message>
    <message>
        <source>The rules are simple: never stop before dawn, never turn round, never look into the box. Rui has kept them for six years, on a road whose signs count upwards without end. Tonight the box knocks from the inside, politely, three times. And in the mirror, for the first time ever, there are lights.</source>
        <translation>Правила просты: не останавливаться до рассвета, не поворачивать назад, не заглядывать в коробку. Руй соблюдает их шесть лет, на дороге, где числа на указателях растут без конца. Сегодня из коробки стучат: вежливо, три раза. А в зеркале, впервые за всё время, появляются огни.</translation>
    </message>
    <message>
        <source>The game was invented by a great-grandfather, and its rules fill a notebook that nobody has ever read to the end. With the road closed and the telephone dead, the family begins to read. Page by page, old debts, old recipes and one old quarrel turn out to be rules as well. By Sunday everyone has cheated, and nobody wants to win.</source>
        <translation>Игру придумал прадедушка, а её правила занимают целую тетрадь, которую никто не дочитал до конца. Дорогу замело, телефон молчит, и семья начинает читать. Страница за страницей выясняется, что старые долги, старые рецепты и одна старая ссора тоже записаны в правилах. К воскресенью сжульничали все, а выигрывать не хочет никто.</translation>
    </message>
    <message>
        <source>Each evening at eight somebody plays the same waltz and stops before the last bar. A nurse comes home to it, a boy does his sums to it, a couple quarrels in its time. When one night there is no music, forty doors open on the stairs. The neighbours, who have never met, go looking for a pianist that no list of tenants knows.</source>
        <translation>Каждый вечер в восемь кто-то играет один и тот же вальс и останавливается перед последним тактом. Под него возвращается с работы медсестра, мальчик решает задачи, ссорится молодая пара. Однажды музыки нет, и на лестницу открываются сорок дверей. Соседи, которые никогда не встречались, ищут пианиста, которого нет ни в одном списке жильцов.</translation>
    </message>
    <message>
        <source>Grandmother Olga won the flight in a crossword, and meant to be home for supper. But the burner sticks, the wind turns, and below them pass a fair, a border, two weddings and a very surprised herd of cows. Five days are enough to learn to steer by smell, to land a sandwich on a church tower, and to say what one never says on the ground.</source>
        <translation>Бабушка Ольга выиграла полёт в кроссворде и собиралась вернуться к ужину. Но горелку заело, ветер переменился, и внизу проплывают ярмарка, граница, две свадьбы и очень удивлённое стадо. Пяти дней хватит, чтобы научиться править по запаху, посадить бутерброд на колокольню и сказать то, чего не говорят на земле.</translation>
    </message>
    <message>
        <source>Inspector Marek closed the case, received a medal and never slept well again. Now a woman who died that night has sent him a ticket for the last tram. He takes his old coat, his older notebook and a place under the lamp. It begins to rain at nine, exactly as it did then. Someone across the street is taking notes about him.</source>
        <translation>Инспектор Марек закрыл дело, получил медаль и с тех пор плохо спит. И вот женщина, погибшая той ночью, присылает ему билет на последний трамвай. Он берёт старое пальто, ещё более старую записную книжку и встаёт под фонарём. Дождь начинается в девять, точно как тогда. На другой стороне улицы кто-то делает записи о нём самом.</translation>
    </message>
    <message>
        <source>The tracks are those of a bear, but they walk in a straight line. Each morning they begin at the forester&apos;s own door. He follows them past the last felled tree, past the last name on the map, and finds that someone has been mending the forest behind his back: a fence here, a nest there, and a bridge that was not needed until now.</source>
        <translation>Следы похожи на медвежьи, но идут по прямой. Каждое утро они начинаются у самого порога лесника. Он идёт по ним дальше последней просеки, дальше последнего названия на карте и видит, что кто-то за его спиной чинит лес: тут изгородь, там гнездо и мост, который до этого дня не был нужен.</translation>
    </message>
    <message>
        <source>The drill goes down eleven kilometres and comes up clean, polished, and warm as a hand. By evening every clock of the station runs backwards by a second an hour. The youngest of the team thinks that the mountain is trying to say something. The oldest knows that it did so once before, and that nobody was left to write it down.</source>
        <translation>Бур уходит на одиннадцать километров и возвращается чистым, отполированным и тёплым, как ладонь. К вечеру все часы станции отстают на секунду в час. Самая молодая в группе думает, что гора хочет что-то сказать. Самый старший знает, что однажды она уже говорила, и записать это было некому.</translation>
    </message>
    <message>
        <source>The Gull has lost every race since she was built, and this summer is to be her last. Then the sailing school is sold, and its pupils take the boat, the coach and the coach&apos;s dog across the bay to ask for it back. They have no engine, one sail and a wager with the richest man on the coast. The wind, for once, is on their side.</source>
        <translation>«Чайка» проиграла все гонки с того дня, как её построили, и это лето должно стать для неё последним. Но парусную школу продают, и ученики забирают лодку, тренера и собаку тренера, чтобы пересечь залив и попросить её обратно. У них нет мотора, зато есть один парус и пари с самым богатым человеком побережья. И ветер наконец-то на их стороне.</translation>
    </message>
    <message>
        <source>The film was made in one summer with a crew of nineteen. Every picture of the weather is real: the director waited for it, sometimes for weeks, and let the actors wait as well. The music was recorded in an empty water tower, whose echo lasts as long as a breath.</source>
        <translation>Фильм сняли за одно лето, и в группе было девятнадцать человек. Вся погода в кадре настоящая: режиссёр ждал её, иногда неделями, и актёры ждали вместе с ним. Музыку записали в пустой водонапорной башне, где эхо длится ровно один вдох.</translation>
    </message>
    <message>
        <source>The script lay in a drawer for twelve years, until a reader took it for a diary and asked how the story went on. Most of the parts are played by people who had never stood before a camera. What they say at the table in the middle of the film, they made up themselves.</source>
        <translation>Сценарий двенадцать лет пролежал в ящике стола, пока кто-то не принял его за дневник и не спросил, что было дальше. Почти все роли исполнили люди, никогда не стоявшие перед камерой. Разговор за столом в середине фильма они придумали сами.</translation>
    </message>
    <message>
        <source>Nothing in this film was drawn by a computer. The models are up to six metres long and hang today in the foyer of the studio. For the longest scene, which has no cut, the camera travelled on the rails of a closed mine, pushed by eight students of physics.</source>
        <translation>В этом фильме ничего не нарисовано на компьютере. Самые большие макеты длиной шесть метров висят теперь в фойе студии. Для самой длинной сцены, снятой без единой склейки, камера ехала по рельсам закрытой шахты, а толкали её восемь студентов-физиков.</translation>
    </message>
    <message>
        <source>Vera Lindqvist</source>
        <translation>Вера Линдквист</translation>
    </message>
    <message>
        <source>Anton Belov</source>
        <translation>Антон Белов</translation>
    </message>
    <message>
        <source>Mina Okafor</source>
        <translation>Мина Окафор</translation>
    </message>
    <message>
        <source>Jan Kovar</source>
        <translation>Ян Коварж</translation>
    </message>
    <message>
        <source>Lucia Ferrante</source>
        <translation>Лючия Ферранте</translation>
    </message>
    <message>
        <source>Pavel Sorokin</source>
        <translation>Павел Сорокин</translation>
    </message>
    <message>
        <source>Hanna Weiss</source>
        <translation>Ханна Вайс</translation>
    </message>
    <message>
        <source>Diego Marin</source>
        <translation>Диего Марин</translation>
    </message>
    <message>
        <source>Irina Volkova</source>
        <translation>Ирина Волкова</translation>
    </message>
    <message>
        <source>Tom Achterberg</source>
        <translation>Том Ахтерберг</translation>
    </message>
    <message>
        <source>Sofia Nilsen</source>
        <translation>София Нильсен</translation>
    </message>
    <message>
        <source>Director: %1</source>
        <translation>Режиссёр: %1</translation>
    </message>
    <message>
        <source>Starring: %1, %2, %3</source>
        <translation>В ролях: %1, %2, %3</translation>
    </message>
    <message>
        <source>Music: %1</source>
        <translation>Композитор: %1</translation>
    </message>
    <message>
        <source>Sound: English, Russian</source>
        <translation>Звук: русский, английский</translation>
    </message>
    <message>
        <source>Subtitles: English, Russian, for the hard of hearing</source>
        <translation>Субтитры: русские, английские, для слабослышащих</translation>
    </message>
</context>
<context>
    <name>Films</name>
    <message>
        <source>The Last Lamp</source>
        <translation>Последний фонарь</translation>
    </message>
    <message>
        <source>First Launch</source>
        <translation>Первый старт</translation>
    </message>
    <message>
        <source>Deep Song</source>
        <translation>Песнь глубин</translation>
    </message>
    <message>
        <source>Amber Forest</source>
        <translation>Янтарный лес</translation>
    </message>
    <message>
        <source>Above the Hills</source>
        <translation>Над холмами</translation>
    </message>
    <message>
        <source>Evening Express</source>
        <translation>Вечерний экспресс</translation>
    </message>
    <message>
        <source>Far Island</source>
        <translation>Далёкий остров</translation>
    </message>
    <message>
        <source>Knight’s Move</source>
        <translation>Ход конём</translation>
    </message>
</context>
<context>
    <name>GridPage</name>
    <message>
        <source>ScrolledGridView: a thousand tiles, of which those in sight exist</source>
        <translation>ScrolledGridView: тысяча плиток, созданы только видимые</translation>
    </message>
    <message>
        <source>current: %1 of %2</source>
        <translation>текущая: %1 из %2</translation>
    </message>
    <message>
        <source>tiles made: %1</source>
        <translation>создано плиток: %1</translation>
    </message>
    <message>
        <source>OK chooses</source>
        <translation>OK выбирает</translation>
    </message>
    <message>
        <source>chosen: %1</source>
        <translation>выбрана: %1</translation>
    </message>
</context>
<context>
    <name>GridZone</name>
    <message>
        <source>All films</source>
        <translation>Все фильмы</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
</context>
<context>
    <name>HelpersPage</name>
    <message>
        <source>Helpers.imageUrl tells in the address how a picture is wanted; a source makes it so</source>
        <translation>Helpers.imageUrl пишет в адрес, какая картинка нужна; такой её и отдают</translation>
    </message>
    <message>
        <source>the address</source>
        <translation>адрес</translation>
    </message>
    <message>
        <source>made to measure: %1 × %2</source>
        <translation>по мерке: %1 × %2</translation>
    </message>
    <message>
        <source>without wishes, shown small</source>
        <translation>без пожеланий, показана мельче</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>A product&apos;s home screen, made of the module&apos;s controls: OK opens it</source>
        <translation>Главный экран, как в приставке, из элементов модуля: откройте кнопкой OK</translation>
    </message>
</context>
<context>
    <name>HomeShelves</name>
    <message>
        <source>New this week</source>
        <translation>Новинки недели</translation>
    </message>
    <message>
        <source>Continue watching</source>
        <translation>Продолжить просмотр</translation>
    </message>
    <message>
        <source>Top 10 today</source>
        <translation>Топ-10 сегодня</translation>
    </message>
    <message>
        <source>For the whole family</source>
        <translation>Для всей семьи</translation>
    </message>
    <message>
        <source>Far from home</source>
        <translation>Вдали от дома</translation>
    </message>
    <message>
        <source>For a rainy evening</source>
        <translation>Для дождливого вечера</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Популярное</translation>
    </message>
    <message>
        <source>Everybody watches</source>
        <translation>Смотрят все</translation>
    </message>
    <message>
        <source>Critics recommend</source>
        <translation>Выбор критиков</translation>
    </message>
    <message>
        <source>Hidden treasures</source>
        <translation>Скрытые сокровища</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Драма</translation>
    </message>
    <message>
        <source>Strong characters</source>
        <translation>Сильные характеры</translation>
    </message>
    <message>
        <source>True stories</source>
        <translation>Реальные истории</translation>
    </message>
    <message>
        <source>Family secrets</source>
        <translation>Семейные тайны</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Приключения</translation>
    </message>
    <message>
        <source>Over land and sea</source>
        <translation>По суше и по морю</translation>
    </message>
    <message>
        <source>Against the clock</source>
        <translation>Наперегонки со временем</translation>
    </message>
    <message>
        <source>Under open skies</source>
        <translation>Под открытым небом</translation>
    </message>
    <message>
        <source>Science fiction</source>
        <translation>Фантастика</translation>
    </message>
    <message>
        <source>Other worlds</source>
        <translation>Иные миры</translation>
    </message>
    <message>
        <source>The day after tomorrow</source>
        <translation>Послезавтра</translation>
    </message>
    <message>
        <source>Machines that think</source>
        <translation>Думающие машины</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Семейное</translation>
    </message>
    <message>
        <source>Together on the sofa</source>
        <translation>Вместе на диване</translation>
    </message>
    <message>
        <source>For the youngest</source>
        <translation>Самым маленьким</translation>
    </message>
    <message>
        <source>A good laugh</source>
        <translation>Посмеяться</translation>
    </message>
</context>
<context>
    <name>IconPage</name>
    <message>
        <source>An image file in one colour, that of its control&apos;s state</source>
        <translation>Картинка из файла, окрашенная в цвет состояния</translation>
    </message>
    <message>
        <source>implicit size: that of the file</source>
        <translation>implicit size: размер файла</translation>
    </message>
    <message>
        <source>coloringMethod, with gold of 50 % alpha</source>
        <translation>coloringMethod, золотой, alpha 50 %</translation>
    </message>
    <message>
        <source>coloured transparent: it is gone</source>
        <translation>цвет прозрачен: не видно</translation>
    </message>
    <message>
        <source>as the file draws it</source>
        <translation>как нарисовано в файле</translation>
    </message>
</context>
<context>
    <name>ImageColorizerPage</name>
    <message>
        <source>opaque</source>
        <translation>сплошной</translation>
    </message>
    <message>
        <source>60 % alpha</source>
        <translation>alpha 60 %</translation>
    </message>
    <message>
        <source>25 % alpha</source>
        <translation>alpha 25 %</translation>
    </message>
    <message>
        <source>Replaces the colour of a picture, with its own alpha or with the colour&apos;s</source>
        <translation>Перекрашивает картинку: прозрачность её собственная или из цвета</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>файл</translation>
    </message>
    <message>
        <source>A pixel keeps its alpha; black stays</source>
        <translation>У точки своя alpha; чёрное остаётся</translation>
    </message>
    <message>
        <source>The colour&apos;s alpha counts; black too</source>
        <translation>Alpha из цвета; красит и чёрное</translation>
    </message>
    <message>
        <source>white</source>
        <translation>белый</translation>
    </message>
    <message>
        <source>gold</source>
        <translation>золотой</translation>
    </message>
    <message>
        <source>mint</source>
        <translation>мятный</translation>
    </message>
    <message>
        <source>rose</source>
        <translation>розовый</translation>
    </message>
    <message>
        <source>50 % white</source>
        <translation>белый 50 %</translation>
    </message>
    <message>
        <source>color: %1 — OK for the next</source>
        <translation>color: %1 — OK: следующий</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>RoundedImage draws the whole picture, ClippableImage a window onto its middle</source>
        <translation>RoundedImage рисует картинку целиком, ClippableImage — окно на её середину</translation>
    </message>
    <message>
        <source>Dunes</source>
        <translation>Дюны</translation>
    </message>
    <message>
        <source>Documentary, 2024</source>
        <translation>Документальный, 2024</translation>
    </message>
    <message>
        <source>City at Night</source>
        <translation>Ночной город</translation>
    </message>
    <message>
        <source>Drama, 12 episodes</source>
        <translation>Драма, 12 серий</translation>
    </message>
    <message>
        <source>Northern Lights</source>
        <translation>Северное сияние</translation>
    </message>
    <message>
        <source>Travel, live</source>
        <translation>Путешествия, прямой эфир</translation>
    </message>
    <message>
        <source>ClippableImage %1 × %2 on an image of %3 × %4 — OK for the next width</source>
        <translation>ClippableImage %1 × %2, картинка %3 × %4 — OK: следующая ширина</translation>
    </message>
</context>
<context>
    <name>KeyItem</name>
    <message>
        <source>SPACE_KEY</source>
        <translation>Пробел</translation>
    </message>
</context>
<context>
    <name>LargeTextPage</name>
    <message>
        <source>A book of a megabyte: up and down scroll, OK goes to the other end</source>
        <translation>Книга в мегабайт: вверх и вниз — прокрутка, OK — к другому концу</translation>
    </message>
    <message>
        <source>%1 characters, offset %2 of %3</source>
        <translation>Символов: %1, offset %2 из %3</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>LayoutSpacer keeps items apart; MediaBlock is what blocks of posters build on</source>
        <translation>LayoutSpacer раздвигает элементы, MediaBlock — основа для блоков с постерами</translation>
    </message>
    <message>
        <source>RowLayout, fills — OK fixes</source>
        <translation>RowLayout, заполняет — OK фиксирует</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>ColumnLayout, fills</source>
        <translation>ColumnLayout, заполняет</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Tonight, itemsHaveTitles: %1</source>
        <translation>Вечером, itemsHaveTitles: %1</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>News</source>
        <translation>Новости</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Фильмы</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Сериалы</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Природа</translation>
    </message>
    <message>
        <source>Science</source>
        <translation>Наука</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Путешествия</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Спорт</translation>
    </message>
    <message>
        <source>Football</source>
        <translation>Футбол</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Theatre</source>
        <translation>Театр</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Детям</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>Кухня</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Погода</translation>
    </message>
    <message>
        <source>ScrolledListView and Highlight: at an edge the list scrolls after the highlight</source>
        <translation>ScrolledListView и Highlight: у края список едет вслед за выделением</translation>
    </message>
    <message>
        <source>chosen film: %1</source>
        <translation>выбран фильм: %1</translation>
    </message>
    <message>
        <source>OK for the next duration</source>
        <translation>OK — другое время</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>move</source>
        <translation>ход</translation>
    </message>
    <message>
        <source>open</source>
        <translation>открыть</translation>
    </message>
    <message>
        <source>press</source>
        <translation>нажать</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>выход</translation>
    </message>
    <message>
        <source>fields</source>
        <translation>поля</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>меню</translation>
    </message>
    <message>
        <source>type</source>
        <translation>ввод</translation>
    </message>
    <message>
        <source>page</source>
        <translation>раздел</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in itself.</extracomment>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Компоненты</translation>
    </message>
    <message>
        <source>A button with a title, a subtitle and two icons</source>
        <translation>Кнопка с заголовком, подписью и двумя значками</translation>
    </message>
    <message>
        <source>A box to check, with a title beside it</source>
        <translation>Флажок с текстом рядом</translation>
    </message>
    <message>
        <source>A line of a main menu: icon, text and picture</source>
        <translation>Строка главного меню: значок, текст и картинка</translation>
    </message>
    <message>
        <source>One tab of a bar</source>
        <translation>Одна вкладка из ряда</translation>
    </message>
    <message>
        <source>One key of the on-screen keyboard</source>
        <translation>Одна клавиша экранной клавиатуры</translation>
    </message>
    <message>
        <source>The on-screen keyboard and its layouts</source>
        <translation>Экранная клавиатура и её раскладки</translation>
    </message>
    <message>
        <source>A line of text that the remote edits</source>
        <translation>Строка текста, которую правит пульт</translation>
    </message>
    <message>
        <source>Plain text in one colour and font</source>
        <translation>Простой текст одного цвета и шрифта</translation>
    </message>
    <message>
        <source>A window onto the middle of an image</source>
        <translation>Окно, в котором видна середина картинки</translation>
    </message>
    <message>
        <source>An image file in one colour</source>
        <translation>Файл картинки, закрашенный одним цветом</translation>
    </message>
    <message>
        <source>Gives an image another colour</source>
        <translation>Даёт картинке другой цвет</translation>
    </message>
    <message>
        <source>A filled box with a border</source>
        <translation>Закрашенный прямоугольник с рамкой</translation>
    </message>
    <message>
        <source>An image, drawn without OpenGL</source>
        <translation>Картинка, нарисованная без OpenGL</translation>
    </message>
    <message>
        <source>What a list scrolls after</source>
        <translation>То, за чем прокручивается список</translation>
    </message>
    <message>
        <source>Room in a layout</source>
        <translation>Свободное место в раскладке</translation>
    </message>
    <message>
        <source>What blocks of posters have in common</source>
        <translation>Общее у всех блоков с постерами</translation>
    </message>
    <message>
        <source>A grid given by its elements and gaps</source>
        <translation>Сетка, заданная элементами и промежутками</translation>
    </message>
    <message>
        <source>A list that keeps its current item in sight</source>
        <translation>Список, который держит текущий элемент на виду</translation>
    </message>
    <message>
        <source>Waiting, told by strips of frames and two texts</source>
        <translation>Ожидание: ленты кадров и два текста</translation>
    </message>
    <message>
        <source>The speed of winding, three arrows and a text</source>
        <translation>Скорость перемотки: три стрелки и текст</translation>
    </message>
    <message>
        <source>An arc that turns on a ring</source>
        <translation>Дуга, бегущая по кольцу</translation>
    </message>
    <message>
        <source>Curves for animations</source>
        <translation>Кривые для анимаций</translation>
    </message>
    <message>
        <source>Key layouts and enumerations that all share</source>
        <translation>Раскладки клавиш и общие перечисления</translation>
    </message>
    <message>
        <source>The name and the version of the module</source>
        <translation>Имя и версия модуля</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Проба</translation>
    </message>
    <message>
        <source>States</source>
        <translation>Состояния</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>A long text that scrolls</source>
        <translation>Длинный текст с прокруткой</translation>
    </message>
    <message>
        <source>A number in large outlined digits</source>
        <translation>Число крупными контурными цифрами</translation>
    </message>
    <message>
        <source>An area filled with any brush</source>
        <translation>Область, залитая любой кистью</translation>
    </message>
    <message>
        <source>How far a view is scrolled</source>
        <translation>Насколько прокручен список или текст</translation>
    </message>
    <message>
        <source>Addresses of pictures made to measure</source>
        <translation>Адреса картинок нужного размера</translation>
    </message>
</context>
<context>
    <name>MainMenuButtonPage</name>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Фильмы</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Эфир</translation>
    </message>
    <message>
        <source>Anna</source>
        <translation>Анна</translation>
    </message>
    <message>
        <source>What to watch tonight</source>
        <translation>Что посмотреть вечером</translation>
    </message>
    <message>
        <source>Eight films, one for every evening</source>
        <translation>Восемь фильмов, по одному на вечер</translation>
    </message>
    <message>
        <source>On all channels, now</source>
        <translation>Сейчас на всех каналах</translation>
    </message>
    <message>
        <source>Where Anna stopped watching</source>
        <translation>Анна ещё не досмотрела</translation>
    </message>
    <message>
        <source>Icon, text and picture; only the background grows, so that focus moves nothing</source>
        <translation>Значок, текст и картинка; растёт лишь фон, и фокус ничего не сдвигает</translation>
    </message>
    <message>
        <source>autoExclusive — OK checks; focus wins over checked</source>
        <translation>autoExclusive — OK выбирает; focused важнее, чем checked</translation>
    </message>
</context>
<context>
    <name>MenuZone</name>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Фильмы</translation>
    </message>
    <message>
        <source>All films</source>
        <translation>Все фильмы</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
</context>
<context>
    <name>RectanglePage</name>
    <message>
        <source>A filled box; its corners are square unless rounding is forced</source>
        <translation>Закрашенный прямоугольник; углы прямые, пока скругление не потребовано</translation>
    </message>
    <message>
        <source>roundingRadius: 40, forceRounding: %1 — OK switches</source>
        <translation>roundingRadius: 40, forceRounding: %1 — OK переключает</translation>
    </message>
</context>
<context>
    <name>RewindIconPage</name>
    <message>
        <source>The speed of winding: left and right change it, OK plays on</source>
        <translation>Скорость перемотки: влево и вправо меняют её, OK — обычная</translation>
    </message>
</context>
<context>
    <name>ScrollBarPage</name>
    <message>
        <source>How far a view is scrolled: up and down scroll, OK goes to the other end</source>
        <translation>Докуда прокручен список: вверх и вниз — прокрутка, OK — в другой конец</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Канал %1</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>LineEdit and Keyboard: each field brings the keyboard that suits it</source>
        <translation>LineEdit и Keyboard: у каждого поля подходящая ему клавиатура</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Film, channel, person</source>
        <translation>Фильм, канал, актёр</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>As others see it</source>
        <translation>Как его видят другие</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Phone: digits are missing</source>
        <translation>Телефон: не все цифры</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Letters and digits</source>
        <translation>Буквы и цифры</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Электронная почта</translation>
    </message>
    <message>
        <source>name@example.com</source>
        <translation>имя@example.com</translation>
    </message>
    <message>
        <source>E-mail: not an address</source>
        <translation>Почта: это не адрес</translation>
    </message>
    <message>
        <source>Promo code</source>
        <translation>Промокод</translation>
    </message>
    <message>
        <source>8 characters</source>
        <translation>8 символов</translation>
    </message>
    <message>
        <source>Promo code: 8 characters</source>
        <translation>Промокод: нужно 8 символов</translation>
    </message>
</context>
<context>
    <name>SettingsZone</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Smooth scrolling and colours</source>
        <translation>Плавная прокрутка и смена цветов</translation>
    </message>
    <message>
        <source>Large text</source>
        <translation>Крупный текст</translation>
    </message>
    <message>
        <source>Titles below the pictures</source>
        <translation>Названия под картинками</translation>
    </message>
</context>
<context>
    <name>SpinnerIndicatorPage</name>
    <message>
        <source>A ring with an arc that turns, grows and shrinks</source>
        <translation>Кольцо с дугой, которая вращается, растёт и сжимается</translation>
    </message>
    <message>
        <source>%1 × %1, lineWidth %2</source>
        <translation>%1 × %1, lineWidth %2</translation>
    </message>
    <message>
        <source>Loading the programme guide. OK changes the lines and colours above.</source>
        <translation>Загрузка программы передач. OK меняет толщину и цвет выше.</translation>
    </message>
</context>
<context>
    <name>TabButtonPage</name>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Завтра</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>The best of the week</source>
        <translation>Лучшее за неделю</translation>
    </message>
    <message>
        <source>Exclusive tabs; a long text widens its tab</source>
        <translation>Выбрана одна вкладка; длинный текст её расширяет</translation>
    </message>
    <message>
        <source>checked wins</source>
        <translation>checked важнее</translation>
    </message>
    <message>
        <source>minimumWidth: %1 — OK checks</source>
        <translation>minimumWidth: %1 — OK выбирает</translation>
    </message>
</context>
<context>
    <name>TextPage</name>
    <message>
        <source>Plain text in one colour and font: wrapped, cut and aligned</source>
        <translation>Простой текст одного цвета и шрифта: переносы, обрезка, выравнивание</translation>
    </message>
    <message>
        <source>Lines break between words; a word wider than the line breaks anywhere.</source>
        <translation>Строки рвутся между словами, а слово шире строки — где придётся.</translation>
    </message>
    <message>
        <source>text: markup stays as typed, RTL at the right</source>
        <translation>text: разметка видна как есть, RTL справа</translation>
    </message>
</context>
<context>
    <name>TopNumberPage</name>
    <message>
        <source>Outlined numbers: filled, or cut out by an invalid color — OK switches</source>
        <translation>Числа с контуром: залитые или вырезанные цветом без значения; OK меняет</translation>
    </message>
</context>
<context>
    <name>TryPage</name>
    <message>
        <source>change</source>
        <translation>менять</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сброс</translation>
    </message>
</context>
<context>
    <name>VocabularyPage</name>
    <message>
        <source>KelGlobal: keyboard layouts and enumerations that all controls share</source>
        <translation>KelGlobal: раскладки клавиатуры и перечисления, общие для всех</translation>
    </message>
    <message>
        <source>%1Layout: %2 keys</source>
        <translation>%1Layout, клавиш: %2</translation>
    </message>
</context>
</TS>
