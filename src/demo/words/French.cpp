#include "demo/Words.h"

namespace guide::words {

// Trades have the forms "the", "of the" and "a"; places a name and "at".
const char16_t* const kFrench = uR"(
first_m=
  Anatole
  Barnabé
  Célestin
  Edmond
  Firmin
  Gaspard
  Honoré
  Isidore
  Léandre
  Octave
  Théophile
  Valentin
first_f=
  Adélaïde
  Blanche
  Capucine
  Delphine
  Éléonore
  Garance
  Hortense
  Joséphine
  Léonie
  Mathilde
  Rosalie
  Séverine
last=
  Aubépin
  Belcourt
  Chantemerle
  Desruisseaux
  Fontvieille
  Grandjean
  Hirondelle
  Larivière
  Montségur
  Noisetier
  Petitbois
  Rossignol
  Tournemire
  Vaucresson
man=
  {first_m} {last}
woman=
  {first_f} {last}
trade=
  l'horloger/de l'horloger/un horloger
  le facteur/du facteur/un facteur
  le notaire/du notaire/un notaire
  le passeur/du passeur/un passeur
  le boulanger/du boulanger/un boulanger
  le chef de gare/du chef de gare/un chef de gare
  le libraire/du libraire/un libraire
  le gardien de phare/du gardien de phare/un gardien de phare
place=
  Saint-Clair-sur-Loutre/à Saint-Clair-sur-Loutre
  Montgrive/à Montgrive
  Roquebelle/à Roquebelle
  Villeneuve-les-Oies/à Villeneuve-les-Oies
  Port-Sablon/à Port-Sablon
home_country=
  France/fr/France
far_country=
  États-Unis/en/États-Unis
country=
  France/fr/France
  France/fr/France
  France/fr/France
  Belgique/fr/Belgique
  Royaume-Uni/en/Royaume-Uni
  États-Unis/en/États-Unis
facts_film_comedy=
  Comédie ({country} {year}).
facts_film_drama=
  Film dramatique ({country} {year}).
facts_film_crime=
  Film policier ({country} {year}).
facts_film_thriller=
  Thriller ({country} {year}).
facts_film_scifi=
  Science-fiction ({country} {year}).
facts_film_fantasy=
  Film fantastique ({country} {year}).
facts_film_horror=
  Film d'épouvante ({country} {year}).
facts_film_western=
  Western ({country} {year}).
facts_film_adventure=
  Film d'aventures ({country} {year}).
facts_film_romance=
  Comédie sentimentale ({country} {year}).
facts_doc=
  Documentaire ({country} {year}).
facts_nature=
  Documentaire animalier ({country} {year}).
facts_history=
  Documentaire historique ({country} {year}).

film_comedy=
  Les vacances {t:trade.2} @ {rire}
  Mariage {home:place.2} @ {rire}
  Une chèvre au salon @ {rire}
  Ma belle-mère à crédit @ {rire}
  L'extraordinaire affaire du chef de gare qui voulait voir passer la mer @ {rire}
  Trois cousins et une cabane @ {rire}
  Qui a peur {t:trade.2} @ {rire}
  Un ministre à l'heure du goûter @ {rire}
rire=
  {^t:trade.1} gagne une croisière pour deux et découvre que l'autre billet appartient à son ancienne femme.
  Elle avait promis de ne plus jamais mentir. Cela dura jusqu'au petit déjeuner.
  Une famille brouillée se retrouve autour d'une table. Si au moins le four marchait.
film_drama=
  Le dernier été {home:place.2} @ {poids}
  Le retour {t:trade.2} @ {poids}
  Le manteau de mon père @ {poids}
  Ce que la marée a laissé @ {poids}
  Le silence après la pluie @ {poids}
poids=
  Après vingt ans d'absence, {t:trade.1} rentre au village. La maison est debout et les gens se souviennent de trop de choses.
  Deux frères doivent vendre la ferme. L'un veut oublier, l'autre ne sait où aller.
film_crime=
  La mort {t:trade.2} @ {meurtre}
  Meurtre {home:place.2} @ {meurtre}
  L'affaire des abricots @ {meurtre}
  Six alibis @ {meurtre}
  Le témoin se tait @ {meurtre}
meurtre=
  Un bureau fermé à clé, une carafe brisée et six parents qui ont tous un alibi les uns pour les autres. Le commissaire commence par la cuisinière.
  On retrouve {t:trade.1} au fond d'un puits qui, tout le village le jure, n'a jamais existé.
film_thriller=
  Le troisième appel @ {frisson}
  Dernier train pour {home:place} @ {frisson}
  Avant le jour @ {frisson}
  Le faux passager @ {frisson}
frisson=
  Un refuge, une tempête de neige, sept invités. Au matin ils sont huit et personne n'est entré.
  Le téléphone sonne chaque nuit à 3 h 14. La première fois, c'était une erreur.
film_scifi=
  Gare lunaire @ {avenir}
  La planète sans ombre @ {avenir}
  Un robot nommé Gérard @ {avenir}
avenir=
  L'équipage se réveille cent ans trop tôt. Il ne manque que le cuisinier.
film_fantasy=
  Le livre aux sept serrures @ {magie}
  La fille du vent @ {magie}
  Le roi des corbeaux @ {magie}
magie=
  Le royaume a perdu son hiver. Seul peut le retrouver celui qui ne le craint pas.
film_horror=
  Le septième invité @ {effroi}
  N'ouvrez pas la cave @ {effroi}
effroi=
  Un jeune couple achète une maison pour une bouchée de pain. Une seule condition, oubliée dès la première nuit.
film_western=
  La dernière diligence @ {ouest}
  Un shérif sans étoile @ {ouest}
ouest=
  Un étranger entre dans une ville où les armes sont interdites. Les autres semblent l'ignorer.
film_adventure=
  Le trésor de {home:place} @ {large}
  Au bout de la carte @ {large}
  Le capitaine Montségur @ {large}
large=
  Une vieille carte, une demi-pièce et un capitaine qui a peur de l'eau. La chasse au trésor peut commencer.
film_romance=
  Un baiser sur le quai @ {amour}
  Un dimanche de lavande @ {amour}
  L'été {t:trade.2} @ {amour}
amour=
  Ils se sont rencontrés dans le mauvais train. Tous deux le savaient, aucun n'est descendu.
soap=
  Place des Tilleuls @ {titre} @ {intrigue}
  Les héritiers de Montgrive @ {titre} @ {intrigue}
series=
  Les filles du passeur @ {titre} @ {intrigue}
  Clinique du Belvédère @ {titre} @ {intrigue}
  La maison sous les pins @ {titre} @ {intrigue}
  Poste d'aiguillage @ {titre} @ {intrigue}
crime=
  Commissaire Aubépin @ {affaire} @ {piste}
  Les enquêtes d'Hortense @ {affaire} @ {piste}
  Basses eaux @ {affaire} @ {piste}
  Le dernier tramway @ {affaire} @ {piste}
  Brigade des objets trouvés @ {affaire} @ {piste}
sitcom=
  Les voisins du dessus @ {titre} @ {pagaille}
  Quatre sur le palier @ {titre} @ {pagaille}
  Réunion de copropriété @ {titre} @ {pagaille}
titre=
  Une visite imprévue
  Vieilles dettes
  La lettre sans signature
  Premières neiges
  Une place à table
  Les clés de la cave
  La nouvelle machine
  Un dimanche à la maison
affaire=
  Le huitième suspect
  La cloche muette
  Un billet pour {home:place}
  Mémoire courte
intrigue=
  Adélaïde croise un homme qu'elle croyait mort. Octave signe un contrat qu'il n'a pas lu.
  Le mariage est remis. Le marié accuse le temps, les invités accusent le marié.
piste=
  On trouve près de la rivière un manteau et des papiers. Leur propriétaire est vivant et jure ne l'avoir jamais porté.
  {^t:trade.1} avoue un meurtre qu'il n'a pas pu commettre. Reste à savoir qui il protège.
pagaille=
  La réunion devait durer dix minutes. Il est minuit et l'on vote sur la couleur de la rampe.
  Quelqu'un a commandé des pizzas pour tout l'immeuble et personne n'avoue.
cartoon=
  Le hérisson à bicyclette @ {frasque} @ {conte}
  Mamie Fusée @ {frasque} @ {conte}
  Le loup végétarien @ {frasque} @ {conte}
kidseries=
  Le club du seau percé @ {frasque} @ {conte}
  Le mystère du bout de la rue @ {frasque} @ {conte}
frasque=
  La pantoufle perdue
  Qui a allumé la lune
  La grande flaque
  Comment cuire un nuage
conte=
  Tout le monde cherche un bonnet. Il est sur la tête de celui qui cherche le mieux.
  Il pleut depuis trois jours et les amis construisent un bateau avec la batterie de cuisine.
doc=
  Les derniers fondeurs de cloches @ {regard}
  Ponts d'Europe @ {regard}
  La ville la nuit @ {regard}
  L'art du pain @ {regard}
regard=
  Ce qui paraît évident a pris toute une vie à quelqu'un. Un film sur la patience et un après-midi de chance.
nature=
  Une année chez les loutres @ {sauvage}
  La vie secrète de la mousse @ {sauvage}
  Le retour du loup @ {sauvage}
  Sous la surface de l'étang @ {sauvage}
sauvage=
  Les petits ont six semaines pour tout apprendre. Pendant ce temps, l'eau monte.
history=
  La route du sel @ {passe}
  Bâtisseurs de cathédrales @ {passe}
  La flotte perdue @ {passe}
passe=
  La grande histoire vue par ceux qui ont cuisiné, lavé et attendu.
travel=
  À pied par les chemins @ {escale} @ {route}
  Trains lents @ {escale} @ {route}
escale=
  Autour de {home:place}
  Le long du vieux canal
  La côte au petit matin
route=
  La table est excellente, la carte l'est moins et les mains suffisent pour se comprendre.
concert=
  Une soirée avec {compositeur} @ {musique}
  Jazz à la gare @ {musique}
  Cordes aux chandelles @ {musique}
compositeur=
  Berlioz
  Ravel
  Fauré
  Bizet
musique=
  Enregistré le soir où le courant a manqué. Personne ne l'a remarqué. Direction : {man}.
club=
  Olympique de Montgrive
  Stade Roquebellois
  Racing Port-Sablon
match=
  Football : {club} – {club2} @ {#3-34}e journée. Au micro : {man}.
  Rugby : {club} – {club2} @ Un quart de finale dans la boue. Au micro : {woman}.
club2=
  Étoile de Saint-Clair
  Avenir Villeneuvois
  Union des Deux-Rives
sportmag=
  Troisième mi-temps @ Les buts du week-end et l'arbitre qui les a vus autrement.
sportnews=
  Le sport en bref @ Résultats et classements.
breakfast=
  Café du matin @ {reveil}
  Le week-end au balcon @ {reveil}
reveil=
  Informations, météo et tartines. Avec {woman} et {man}.
news=
  Le journal du {channel} @ {actualite}
  Le journal @ {actualite}
actualite=
  L'essentiel de l'actualité en France et dans le monde.
  Ce qui s'est passé, pourquoi et la suite.
weather=
  La météo @ {ciel}
  Parapluie ou pas @ {ciel}
ciel=
  Éclaircies, puis averses, puis l'inverse.
  Brumes au matin. Des températures de saison.
region=
  Nos villages @ Des nouvelles de là où personne d'autre ne s'arrête.
talk=
  Deux fauteuils @ {causerie}
  Sans cravate @ {causerie}
causerie=
  {woman} parle de théâtre, de chevaux et d'un long silence.
  Pourquoi a-t-il quitté la scène ? {man} l'explique deux fois.
quiz=
  Le troisième indice @ {questions}
  Qui dit mieux @ {questions}
  La lettre manquante @ {questions}
  Village contre village @ {questions}
questions=
  Trois candidats, dix questions et pas de chuchotements. Présenté par {man}.
  Institutrices contre pompiers. Les perdants essuient le tableau. Présenté par {woman}.
show=
  La rue des talents @ {gala}
  Tout le village danse @ {gala}
gala=
  Soir de demi-finale. Le jury est sévère et le magicien jure qu'il y avait un lapin. Avec {woman} et {man}.
magazine=
  Ici et alentour @ {gens}
  Bons voisins @ {gens}
gens=
  Comment réduire sa facture de chauffage et où faire réparer une bouilloire.
cooking=
  La cuillère en bois @ {plat}
  D'abord la soupe @ {plat}
plat=
  Un gratin qui divise trois générations. En cuisine : {woman}.
  Trop de poires ? Quatre idées et une liqueur. En cuisine : {man}.
garden=
  Limaces et roses @ Quand tailler le pommier et comment tromper une limace.
moviemag=
  Bande-annonce @ Les sorties de la semaine et une scène tournée quarante fois.
short=
  Carte postale de {home:place} @ Une halte sous le clocher.
  Ce soir @ Ce que vous verrez si vous restez.
  Une minute de calme @ La mer.
night=
  Lumières du port @ Le quai la nuit. Des bateaux passent.
  Aquarium @ Des poissons jusqu'au matin.
)";

} // namespace guide::words
