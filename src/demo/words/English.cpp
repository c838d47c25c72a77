#include "demo/Words.h"

namespace guide::words {

// Trades have a form for sentences and one for titles.
const char16_t* const kEnglish = uR"(
first_m=
  Alistair
  Barnaby
  Cuthbert
  Desmond
  Edgar
  Fergus
  Gareth
  Hamish
  Idris
  Jasper
  Leopold
  Magnus
  Rupert
  Tobias
first_f=
  Agatha
  Beatrix
  Cordelia
  Dorothea
  Enid
  Flora
  Gwendolen
  Harriet
  Imogen
  Marjorie
  Nerys
  Ottilie
  Rosalind
  Winifred
last=
  Applegarth
  Bramblewick
  Crowhurst
  Dunnock
  Eddowes
  Fairweather
  Greenhalgh
  Hollybush
  Kettlewell
  Larkspur
  Merriweather
  Oakenshaw
  Pemberley
  Quince
  Ravenscroft
  Thistlethwaite
  Wren
man=
  {first_m} {last}
woman=
  {first_f} {last}
trade=
  clockmaker/Clockmaker
  ferryman/Ferryman
  lighthouse keeper/Lighthouse Keeper
  postmaster/Postmaster
  bell ringer/Bell Ringer
  beekeeper/Beekeeper
  piano tuner/Piano Tuner
  stationmaster/Stationmaster
  locksmith/Locksmith
  cartographer/Cartographer
lady=
  librarian/Librarian
  postmistress/Postmistress
  landlady/Landlady
  seamstress/Seamstress
  headmistress/Headmistress
  botanist/Botanist
  violinist/Violinist
place=
  Little Wobbling
  Upper Dunnock
  Nether Kettle
  Saltmarsh Quay
  Crowhurst Bay
  Bramble Cross
  Owlbridge
home_country=
  UK/en/UK
far_country=
  USA/en/USA
country=
  UK/en/UK
  UK/en/UK
  Ireland/en/Ireland
  USA/en/USA
  Australia/en/Australia
  France/fr/France
facts_film_comedy=
  Comedy ({country} {year}).
facts_film_drama=
  Drama ({country} {year}).
facts_film_crime=
  Crime film ({country} {year}).
facts_film_thriller=
  Thriller ({country} {year}).
facts_film_scifi=
  Science fiction ({country} {year}).
facts_film_fantasy=
  Fantasy ({country} {year}).
facts_film_horror=
  Horror ({country} {year}).
facts_film_western=
  Western ({country} {year}).
facts_film_adventure=
  Adventure ({country} {year}).
facts_film_romance=
  Romance ({country} {year}).
facts_doc=
  {country} {year}.
facts_nature=
  {country} {year}.
facts_history=
  {country} {year}.

film_comedy=
  The Reluctant {t:trade.2} @ {laugh}
  Two Weddings and a Goat @ {laugh}
  Trouble at {home:place} @ {laugh}
  A {l:lady.2} in a Hurry @ {laugh}
  Marmalade for the Minister @ {laugh}
  The Wrong Trousseau @ {laugh}
  My Uncle the {t:trade.2} @ {laugh}
  Bring Your Own Ladder @ {laugh}
  The Remarkable Misadventures of a Piano Tuner Between Two Railway Stations @ {laugh}
laugh=
  A {t:trade} wins a cruise for two and discovers that the other ticket belongs to his former wife.
  The village of {home:place} needs one honest man for the council. It settles for a {t:trade}.
  Three cousins inherit one cottage, one parrot and a great many opinions.
  She promised never to tell a lie again. It lasted until breakfast.
film_drama=
  The Last Summer at {home:place} @ {weight}
  What the Tide Left @ {weight}
  The {t:trade.2} Returns @ {weight}
  A House With No Clocks @ {weight}
  Letters to {home:place} @ {weight}
  My Father's Coat @ {weight}
weight=
  After twenty years a {t:trade} comes home. The house still stands, and people remember more than he would like.
  Two brothers must decide what to do with the farm. One wants to forget, the other has nowhere to go.
  A translator finds her mother's letters and, line by line, another childhood.
film_crime=
  Death of a {t:trade.2} @ {murder}
  Murder at {home:place} @ {murder}
  The {l:lady.2} Knew @ {murder}
  The Body in the Potting Shed @ {murder}
  Six Alibis @ {murder}
  Arsenic and Apricots @ {murder}
murder=
  A locked study, a broken decanter and six relatives, each with an alibi for the next. The inspector begins with the cook.
  The {t:trade} of {home:place} is found at the bottom of a well that, everyone agrees, was never there.
film_thriller=
  The Third Call @ {suspense}
  Before It Gets Light @ {suspense}
  Last Train to {home:place} @ {suspense}
  No Signal @ {suspense}
  The Tenth Floor @ {suspense}
suspense=
  A mountain hut, a blizzard, seven guests. By morning there are eight, and nobody came in.
  The telephone rings at 3.14 every night. The first time it was a wrong number.
film_scifi=
  Moon Station Eleven @ {future}
  The Planet Without Shadows @ {future}
  A Robot Called Geoffrey @ {future}
  An Hour Before the Sun @ {future}
future=
  The crew wake from hibernation a hundred years too soon. Only the cook is missing.
  Mankind has moved to the Moon. One {t:trade} is sent back to switch off the lights.
film_fantasy=
  The Book of Seven Locks @ {magic}
  Daughter of the Wind @ {magic}
  The Raven King's Umbrella @ {magic}
  The Isle of Forgotten Names @ {magic}
magic=
  The kingdom has lost its winter. Only somebody who does not fear it can find it again.
  The last dragon cannot fly. He can read, which is a good deal more dangerous.
film_horror=
  The Seventh Guest @ {dread}
  Do Not Lock the Cellar @ {dread}
  The Mill at {home:place} @ {dread}
dread=
  A young couple buy a house for a song. There is one condition, and they break it on the first night.
film_western=
  The Last Stage to Santa Bonita @ {frontier}
  A Sheriff Without a Star @ {frontier}
  Coyote Valley @ {frontier}
frontier=
  A stranger rides into a town where guns are forbidden. Nobody else seems to have heard.
film_adventure=
  The Treasure of {home:place} @ {far}
  Beyond the Edge of the Map @ {far}
  Captain Fairweather @ {far}
  The Golden Caravan @ {far}
far=
  An old map, half a coin and a captain who is afraid of water. The hunt for the treasure may begin.
film_romance=
  A Kiss on Platform Two @ {love}
  Summer With the {t:trade.2} @ {love}
  Lavender Sunday @ {love}
  Two and a Bicycle @ {love}
love=
  They met on the wrong train. Both of them knew, and neither got off.
  For four years they have written to each other. Now they share a lift and a broken lamp.
soap=
  Harbour Lane @ {episode} @ {affairs}
  The Tidewaters @ {episode} @ {affairs}
  Cobbler's Yard @ {episode} @ {affairs}
series=
  The Ferryman's Daughters @ {episode} @ {affairs}
  Owlbridge General @ {episode} @ {affairs}
  A Practice by the Sea @ {episode} @ {affairs}
  The House at Bramble Cross @ {episode} @ {affairs}
  Signal Box @ {episode} @ {affairs}
crime=
  Inspector Quince @ {inquiry} @ {detection}
  The Dunnock Inquiries @ {inquiry} @ {detection}
  Low Water @ {inquiry} @ {detection}
  Ravenscroft Investigates @ {inquiry} @ {detection}
  Cold Harbour @ {inquiry} @ {detection}
  The Night Mail @ {inquiry} @ {detection}
  A Quiet Parish @ {inquiry} @ {detection}
sitcom=
  Next Door but One @ {joke} @ {muddle}
  Committee of Four @ {joke} @ {muddle}
  The In-Laws Are Upstairs @ {joke} @ {muddle}
  Out of Order @ {joke} @ {muddle}
episode=
  An Unexpected Guest
  Old Debts
  The Unsigned Letter
  A Key Under the Mat
  First Snow
  The Morning After
  A Seat at the Table
  What the {l:lady.2} Said
  High Tide
  Under One Roof
inquiry=
  The Silent Bell
  A Ticket to {home:place}
  The Eighth Suspect
  Short Memory
  Who Closed the Window
  The Empty Case
joke=
  The New Washing Machine
  Who Ate the Trifle
  The Big Tidy
  Diet From Monday
  The Lift Again
affairs=
  Cordelia meets a man she believed to be dead. Rupert meanwhile signs a contract that he has not read.
  The wedding is put off. The groom blames the weather, the guests blame the groom.
  A letter arrives eleven years late, and everyone at the table recognises the hand.
detection=
  A coat is found by the river with a stranger's papers in it. The owner is alive and says he never wore it.
  The {t:trade} confesses to a murder that he cannot have committed. The question is whom he is shielding.
muddle=
  Somebody has ordered pizza for the whole house and nobody owns up. Suspicion falls on the one with his mouth full.
  The meeting was to last ten minutes. It is midnight, and they are voting on the colour of the banister.
cartoon=
  Hedgehog on a Bicycle @ {frolic} @ {tale}
  Granny Rocket @ {frolic} @ {tale}
  The Vegetarian Wolf @ {frolic} @ {tale}
  Teapot Emma @ {frolic} @ {tale}
kidseries=
  The Leaky Bucket Club @ {frolic} @ {tale}
  The Mystery at the End of the Road @ {frolic} @ {tale}
frolic=
  The Lost Slipper
  How to Bake a Cloud
  Who Lit the Moon
  The Great Puddle
  A Birthday
tale=
  Everyone is looking for a missing hat. It is on the head of whoever looks hardest.
  It has rained for three days, and the friends build a ship of what they find in the kitchen.
doc=
  The Last {craft} @ {insight}
  Bridges @ {insight}
  How to Dig a Tunnel @ {insight}
  The City at Night @ {insight}
  A Street and a Century @ {insight}
  The Art of Bread @ {insight}
  Keepers of the Light @ {insight}
craft=
  Bell Founders
  Basket Makers
  Boat Builders
  Hedge Layers
insight=
  What looks obvious took somebody a lifetime. A film about patience, error and one lucky afternoon.
  Our cameras spent a year in one place. Nothing changed, and yet everything is different.
nature=
  A Year With Otters @ {wild}
  The Secret Life of Moss @ {wild}
  Return of the Wolf @ {wild}
  Wings Over the Estuary @ {wild}
  Beneath the Pond @ {wild}
  Tide and Feather @ {wild}
wild=
  The cubs have six weeks to learn everything. Meanwhile the water is rising.
  At first glance nothing happens here. At the second, somebody wins and somebody loses every moment.
history=
  The Salt Road @ {past}
  Builders of Cathedrals @ {past}
  The Lost Fleet @ {past}
  The Age of Steam @ {past}
  Ladies Behind the Throne @ {past}
past=
  An archive releases a paper that nobody had opened for four hundred years.
  Great events, as seen by those who cooked, washed and waited through them.
land=
  Georgia
  Portugal
  Norway
  Japan
  Estonia
  Morocco
travel=
  On Foot Across {land} @ {road}
  Slow Trains: {land} @ {road}
  Wayside @ {stage} @ {road}
stage=
  Round {home:place}
  Along the Old Canal
  Up the Beacon
road=
  The food is excellent, the map is not, and hands will do for a language.
  Ferrymen, bakers and a gentleman who mends umbrellas: a journey without monuments.
concert=
  An Evening of {composer} @ {music}
  Brass on the Pier @ {music}
  Strings by Candlelight @ {music}
composer=
  Elgar
  Purcell
  Dvořák
  Haydn
music=
  Recorded in a full house on the night the lights failed. Nobody noticed. {man} conducts.
club=
  Owlbridge Rovers
  Saltmarsh Town
  Nether Kettle United
  Dunnock Athletic
match=
  Football: {club} v {club2} @ Matchday {#3-34}. Commentary by {man}.
  Cricket: {club} v {club2} @ The third day, weather permitting. Commentary by {woman}.
  Rugby: {club} v {club2} @ A quarter-final in the mud. Commentary by {man}.
club2=
  Crowhurst Wanderers
  Bramble Cross
  Upper Wobbling
  Harbour City
sportmag=
  Extra Time @ Goals, doubtful decisions and the man who made them.
  The Touchline @ The weekend's games and a guest who missed a penalty: {man}.
sportnews=
  Sports News @ Results and tables.
breakfast=
  Breakfast at the Harbour @ {morning_text}
  The Weekend Kettle @ {morning_text}
morning_text=
  News, weather and a cup of tea. With {woman} and {man}.
news=
  {channel} News @ {events}
  The News @ {events}
events=
  The day's main stories from home and abroad.
  What happened, why it happened and what comes next.
weather=
  Weather @ {sky}
  Umbrella or Not @ {sky}
sky=
  Bright spells, then showers, then the other way round.
  Mist at first. Temperatures about right for the time of year.
region=
  Around the Bay @ News from places where nobody else stops.
talk=
  Two Armchairs @ {chat}
  After Ten @ {chat}
chat=
  {woman} talks about the theatre, horses and one long silence.
  Why did he give up the stage? {man} explains, twice.
quiz=
  Third Clue @ {questions}
  Know or Go @ {questions}
  The Missing Letter @ {questions}
  Parish Against Parish @ {questions}
questions=
  Three contestants, ten questions, no whispering. Your host is {man}.
  Teachers against firefighters. The losers clean the board. Your host is {woman}.
show=
  The Talented Street @ {gala}
  Everybody Dances @ {gala}
gala=
  Semi-final night. The jury is stern and the magician insists that there was a rabbit. With {woman} and {man}.
magazine=
  Round and About @ {folk}
  Good Neighbours @ {folk}
folk=
  How to save on heating, where kettles are mended and why neighbours matter.
cooking=
  The Wooden Spoon @ {dish}
  Soup First @ {dish}
dish=
  A steak and ale pie that three generations have argued about. In the kitchen: {woman}.
  What to do with too many pears: four ideas and one liqueur. In the kitchen: {man}.
garden=
  Slugs and Roses @ When to prune, how to fool a slug and why tomatoes dislike a draught.
  The Allotment @ A visit to plot number five and its formidable marrow.
moviemag=
  Trailer Park @ The week's premieres and a scene that took forty takes.
  Reel Talk @ {woman} on the art of cutting.
short=
  Postcard From {home:place} @ A short stop by the pump, the church and the pub.
  Tonight @ What there is to see if you stay.
  A Minute of Calm @ Waves.
night=
  Harbour Lights @ The quay at night. Boats come and go.
  Fish @ An aquarium, until morning.
)";

} // namespace guide::words
