#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    // Hungarian
    Row{kFiction, kName, u"családi|történelmi|életrajzi|háborús|katasztrófa|misztikus"},
    Row{kEntertainment, kName, u"szabadidős műsor|szabadidos-musor|gasztro|életmód műsor"},
    Row{kSeries, kKind,
        u"*sorozat|filmsorozat|tévéfilmsorozat|telenovella|szappanopera|tévésorozat|krimisorozat|"
        u"szitkom|drámasorozat|vígjátéksorozat|akciófilm-sorozat|akciófilmsorozat|kalandfilmsorozat|"
        u"kórházsorozat|teleregény|minisorozat|*-sorozat|tinisorozat|thrillersorozat|horrorsorozat|"
        u"sci-fi sorozat", u"hu"},
    Row{kSeries, kText,
        u"vígjátéksorozat|vígjáték-sorozat|drámasorozat|krimisorozat|bűnügyi sorozat|telenovella|"
        u"szappanopera|akciófilm-sorozat|akciófilmsorozat|tévéfilmsorozat|filmsorozat|teleregény|"
        u"thrillersorozat|fantasy sorozat|krimi sorozat|tévésorozat|szituációs komédia|dráma sorozat|"
        u"kórházsorozat|sci-fi sorozat|akciósorozat|akció-fantasy sorozat|sikersorozat|telenovellája"},
    Row{kSeries | kVague, kKind, u"sorozat", u"hu"},
    Row{kMovies, kKind,
        u"film|játékfilm|*film|tévéfilm|mozifilm|rövidfilm|filmszatíra|filmdráma|tv-film|háborús film|"
        u"romantikus film|életrajzi film|kisjátékfilm|történelmi film|sportfilm|musicalfilm|"
        u"családi film|*filmdráma", u"hu"},
    Row{kMovies, kText,
        u"játékfilm|akciófilm|kalandfilm|mozifilm|romantikus film|háborús film|tévéfilm|"
        u"történelmi film|családi film"},
    Row{kComedy, kKind,
        u"vígjáték|*vígjáték|filmvígjáték|akcióvígjáték|romantikus vígjáték|tragikomédia|krimivígjáték|"
        u"komédia|*komédia", u"hu"},
    Row{kMovies | kComedy, kText,
        u"romantikus vígjáték|akcióvígjáték|krimivígjáték|filmvígjáték|családi vígjáték|"
        u"romantikus komédia|akcióvígjátékban|vígjátékban"},
    Row{kDrama, kKind, u"dráma|filmdráma|*dráma|melodráma", u"hu"},
    Row{kMovies | kDrama, kText,
        u"filmdráma|történelmi dráma|romantikus dráma|életrajzi dráma|háborús dráma|krimidráma"},
    Row{kThriller, kKind, u"thriller|akcióthriller|krimithriller|*thriller", u"hu"},
    Row{kHorror, kKind, u"horror|horrorfilm|*horror", u"hu"},
    Row{kSF, kKind,
        u"sci-fi|sci-fi film|tudományos-fantasztikus film|sci-fi akciófilm|sci-fi thriller", u"hu"},
    Row{kAdventure, kKind, u"kalandfilm|akció-kalandfilm"},
    Row{kFantasy, kKind, u"fantasyfilm|mesefilm fantasy", u"hu"},
    Row{kCrime, kKind, u"bűnügyi film|krimi|gengszterfilm|*krimi", u"hu"},
    Row{kWestern, kKind, u"western|westernfilm", u"hu"},
    Row{kAdventure, kName, u"kaland"},
    Row{kCrime, kName, u"bűnügyi"},
    Row{kFiction, kName, u"akció|romantikus|dráma"},
    Row{kForChildren, kKind,
        u"rajzfilm|rajzfilmsorozat|mese|mesefilm|gyerekműsor|gyermekműsor|ifjúsági|ifjúsági sorozat|"
        u"bábfilm|mesesorozat|gyerekeknek|ifjúsági műsor|ismeretterjesztő gyermekműsor|"
        u"animációs sorozat|rajzfilm sorozat|animációs film|bábsorozat|ifjúsági film|animációs|gyermek|"
        u"óvodásoknak|animációs filmsorozat", u"hu"},
    Row{kForChildren, kText,
        u"rajzfilmsorozat|gyerekműsor|gyermekműsor|ifjúsági sorozat|bábfilm|mesesorozat|"
        u"rajzfilm sorozat|óvodásoknak|mesefilm|bábfilmsorozat|rajzfilm|gyerekeknek szóló|"
        u"gyermekeknek szóló|mesék|ifjúsági műsorok|kicsiknek|a legkisebbeknek|ifjúsági filmsorozat|"
        u"gyermeksorozat", u"hu"},
    Row{kAnimation, kText,
        u"animációs sorozat|animációs film|animációs filmsorozat|animációs vígjátéksorozat|"
        u"animációs vígjáték|animációs kalandfilm|számítógépes animációs|animációs vígjáték-sorozat|"
        u"animációs kalandsorozat|animációs akciófilm-sorozat"},
    Row{kAnimation | kAdult, kText,
        u"felnőtt animációs|felnőtteknek szóló animációs|felnőtt rajzfilmsorozat"},
    Row{kDocumentaries, kName,
        u"dokumentumfilm|dokumentumfilm-sorozat|dokumentumsorozat|dokumentumfilm sorozat|"
        u"ismeretterjesztő|ismeretterjesztő film|ismeretterjesztő sorozat|ismeretterjesztő filmsorozat|"
        u"ismeretterjesztő műsor|természetfilm|természetfilm sorozat|portréfilm|útifilm|riportfilm|"
        u"riportműsor|dokumentum|dokumentumdráma|útifilm sorozat|természetfilm-sorozat|oktatófilm|"
        u"portré|tudományos|portréműsor|portrémagazin|kulturális magazin|tudományos magazin|útirajz", u"hu"},
    Row{kDocumentaries, kText,
        u"dokumentumfilm|dokumentumfilm-sorozat|dokumentumfilmsorozat|dokumentumsorozat|"
        u"ismeretterjesztő|természetfilm|természetfilm-sorozat|dokumentumdráma|dokumentum-sorozat|"
        u"dokumentumfilmek|útifilm|dokumentumműsor|dokusorozat|portréfilm|dokumentumsorozatban|"
        u"portréműsor|dokumentumműsor-sorozat|tudományos magazin|dokumentum"},
    Row{kNews, kName,
        u"hírek|híradó|hírműsor|időjárás|időjárás-jelentés|időjárásjelentés|politikai magazin|"
        u"közéleti magazin|közéleti műsor|hírmagazin|háttérműsor|gazdasági magazin|politikai műsor|"
        u"vitaműsor|hírháttér|közélet|külpolitikai magazin|politikai talkshow|híradás|"
        u"információs műsor", u"hu"},
    Row{kNews, kText,
        u"hírműsor|politikai magazin|közéleti magazin|hírmagazin|háttérműsor|híradók|időjárás-jelentés|"
        u"közéleti műsor|közéleti témákkal|hírösszefoglaló|közéleti talkshow|politikai vitaműsor|"
        u"hírháttérműsor|friss hírek|legfrissebb hírek|hírblokk|közéleti beszélgetés|gazdasági magazin|"
        u"időjárás-előrejelzés|közéleti háttérműsor|politikai, gazdasági|gazdasági és közéleti"},
    Row{kNews, kTitle,
        u"híradó|hírek|időjárás|időjárás-jelentés|híradója|krónika|esti híradó|tények|tények plusz|"
        u"rtl híradó|hírösszefoglaló|közélet|hírpercek|euronews|ma reggel|ma délelőtt|ma délután|"
        u"ma este|reggeli krónika|déli krónika|esti krónika|hírháttér|hírvilág|unió27|az este|"
        u"közbeszéd|vármegyei híradó|napi aktuális|mokka hírek|aktuális", u"hu"},
    Row{kEntertainment, kKind,
        u"vetélkedő|vetélkedőműsor|kvíz|kvízműsor|szórakoztató műsor|talkshow|beszélgetős műsor|"
        u"főzőműsor|gasztronómiai műsor|valóságshow|reality|reality-show|reality sorozat|magazinműsor|"
        u"szórakoztató|szórakoztató magazin|életmódmagazin|doku-reality|gasztroműsor|show-műsor|"
        u"showműsor|autósmagazin|autós magazin|humor|kabaré|kívánságműsor szórakoztató|kvízshow|"
        u"életmód magazin|divatmagazin|műsorsorozat|reality műsor|játékos műsor|gasztromagazin|"
        u"szórakoztató műsorsorozat|gasztronómiai magazin|doku-reality sorozat|doku-szappan|"
        u"lakberendezési műsor|horgászmagazin|vadászmagazin|életmód|gasztronómia|magazin|autós műsor|"
        u"reality-sorozat|reality-műsor|show|játék|kvízjáték|főzőshow", u"hu"},
    Row{kEntertainment, kText,
        u"vetélkedőműsor|kvízműsor|kvízshow|talkshow|beszélgetős műsor|főzőműsor|gasztronómiai műsor|"
        u"valóságshow|reality-show|magazinműsor|életmódmagazin|doku-reality|gasztroműsor|autósmagazin|"
        u"autós magazin|szórakoztató műsor|vetélkedő|gasztro-reality|főzőshow|showműsor|tehetségkutató|"
        u"párkereső|reality műsor|reality-sorozat|doku-reality sorozat|társkereső műsor|"
        u"szórakoztató műsorsorozat|életmód magazin|bulvármagazin|lakberendezési|gasztrokulturális|"
        u"gasztromagazin|sztármagazin|rejtett kamerás|játékshow|kabaré|stand-up|reality sorozat|"
        u"autós műsor|szórakoztató magazin|kulináris|horgász magazin|vadász magazin|séf"},
    Row{kMusic, kKind,
        u"koncert|zenés műsor|zenei műsor|zene|videoklipek|koncertfilm|komolyzene|operett|opera|"
        u"könnyűzene|zenei|kívánságműsor|klipek|slágerlista|zenei magazin|nóta|népzene|musical|dalok|"
        u"balett|klipműsor|zenés szórakoztató műsor|hangverseny|jazz|könnyűzenei műsor|"
        u"komolyzenei műsor|nótaműsor", u"hu"},
    Row{kMusic, kText,
        u"zenés műsor|zenei műsor|videoklipek|koncertfilm|kívánságműsor|könnyűzenei|zenei magazin|"
        u"hangverseny|koncertfelvétel|nótaműsor|zenés szórakoztató|komolyzenei|slágerlista|videoklip|"
        u"nótakedvelők|zenei válogatás|mulatós|zenekar koncertje|muzsikus"},
    Row{kSports, kKind,
        u"labdarúgás|sportmagazin|sportműsor|kézilabda|jégkorong|kosárlabda|kerékpár|foci|röplabda|"
        u"tenisz|vízilabda|autósport|úszás|küzdősport|atlétika|sporthíradó|sporthírek|motorsport|"
        u"sakk sport|autó-motorsport", u"hu"},
    Row{kSports, kText,
        u"sportmagazin|sportműsor|bajnoki mérkőzés|labdarúgó|élő sportközvetítés|sportközvetítés|"
        u"sporthíradó|bajnokság mérkőzése|mérkőzés közvetítése|sporthírek|sportesemény", u"hu"},
    Row{kSports, kTitleStart,
        u"labdarúgás|kézilabda|jégkorong|kosárlabda|kerékpár|röplabda|tenisz|vízilabda|forma-1|"
        u"ökölvívás|úszás|snooker|kerékpározás|torna|atlétika|asztalitenisz|autósport|sífutás|biatlon|"
        u"síugrás|alpesi sí|golf|motorsport|sporthíradó|sporthírek|vívás|rögbi|darts|foci|futsal|"
        u"kajak-kenu|öttusa|lovaglás|birkózás|judo|teke|gyorsasági motor|küzdősport|vitorlázás|"
        u"triatlon|evezés|dzsúdó|sport", u"hu"},
    Row{kNothing, kKind,
        u"televíziós vásárlás|reklám|teleshop|műsorszünet|vásárlási műsor|vásárlási műsorablak|"
        u"szentmise|istentisztelet|képújság", u"hu"},
    Row{kNothing, kTitle,
        u"televíziós vásárlás|televíziós vásárlási műsorablak|teleshop|műsorszünet|top shop|képújság|"
        u"adásszünet|vásárlási műsorablak", u"hu"},
    Row{kNation, kLead,
        u"amerikai|angol|brit|német|francia|olasz|spanyol|magyar|orosz|japán|kanadai|ausztrál|belga|"
        u"holland|dán|svéd|norvég|lengyel|cseh|román|török|kínai|koreai|osztrák|svájci|mexikói|"
        u"kolumbiai|ír|finn|argentin|brazil|indiai|dél-koreai|chilei|új-zélandi|izraeli|szerb|szlovák|"
        u"*-amerikai|*-angol", u"hu"},
    Row{kPresented, kText,
        u"műsor|műsorvezető*|műsorban|műsorában|műsora|műsorunk|műsorunkban|házigazda|házigazdája|"
        u"versenyző*|vendég|vendégek|vendége|vendégei|sztárvendég*|jelentkező*|játékos|játékosok|"
        u"bemutatja|bemutatjuk|ismerkedhetünk|megismerkedhetünk|betekint*|riport*|szakértő*|kulisszák|"
        u"mesélik el|történetüket|helyszín*|turista|turisták|utazás|recept*|valóságos|kandidátus*|"
        u"verseny|verseny*|ebben a sorozatban|világa|stáb|néptánc*|énekes*|művész*|zálog*|aukció*|"
        u"menyasszony*|lakás*|otthon*|felújít*|átalakít*", u"hu"},
    Row{kMusic, kText, u"klipek|klip|klipp|klippek|slágerek|slágerei|top 20|nóták|mulatós zene", u"hu"},
    Row{kNews, kTitle,
        u"házon kívül|célpont|nagykép|szabad szemmel|heti napló|magyarország élőben|egyenes beszéd|"
        u"start|csatt|spirit|napi aktuális|heti hetes hírek|uniós hírek|háttér|ma éjszaka", u"hu"},
    Row{kEntertainment, kText,
        u"doku-reality*|realityben|realityje|reality-je|valóságshow*|talkshow*|főzőverseny*|kvízjáték*", u"hu"},
    // Greek
    Row{kFiction, kName, u"κοινωνική|ρομαντική|σατιρική|ιστορική|βιογραφία|πολεμική|μυστήριο"},
    Row{kSeries, kKind,
        u"σειρά|τηλεοπτική σειρά|κωμική σειρά|δραματική σειρά|ελληνική σειρά|ξένη σειρά|τούρκικη σειρά|"
        u"κοινωνική σειρά|αστυνομική σειρά|σαπουνόπερα|σίριαλ|σειρές|καθημερινή σειρά|"
        u"σειρά μυθοπλασίας|αισθηματική σειρά|κωμωδία σειρά|τηλενουβέλα|ξένες σειρές|ελληνικές σειρές"},
    Row{kSeries, kText,
        u"κωμική σειρά|δραματική σειρά|ελληνική σειρά|ξένη σειρά|τούρκικη σειρά|τουρκική σειρά|"
        u"αστυνομική σειρά|κοινωνική σειρά|νεανική σειρά|σειρά μυστηρίου|αισθηματική σειρά|"
        u"τηλεοπτική σειρά|σειρά εποχής|δραματική τούρκικη σειρά|σειρά φαντασίας|ιστορική σειρά|"
        u"μίνι σειρά|καθημερινή σειρά|σαπουνόπερα|κοινωνική δραματική σειρά|ιατρική σειρά|σειρά δράσης|"
        u"σειρά ελληνικής παραγωγής"},
    Row{kMovies, kKind,
        u"ταινία|ξένη ταινία|ελληνική ταινία|ταινίες|κινηματογράφος|ελληνικός κινηματογράφος|"
        u"ταινία μικρού μήκους|ξένη ταινία δράσης|τηλεταινία|ξένες ταινίες|ελληνικές ταινίες|"
        u"μικρού μήκους"},
    Row{kMovies, kText,
        u"ξένη ταινία|ελληνική ταινία|ταινία δράσης|κωμική ταινία|ταινία φαντασίας|ταινία τρόμου|"
        u"ταινία επιστημονικής φαντασίας|πολεμική ταινία|δραματική ταινία|ταινία μυστηρίου|"
        u"οικογενειακή ταινία|ταινία παραγωγής"},
    Row{kComedy, kKind,
        u"κωμωδία|ρομαντική κομεντί|αισθηματική κομεντί|αισθηματική κωμωδία|ρομαντική κωμωδία|"
        u"μαύρη κωμωδία|δραματική κομεντί"},
    Row{kComedy, kKind, u"κομεντί"},
    Row{kDrama, kKind,
        u"δράμα|αισθηματικό δράμα|κοινωνικό δράμα|ιστορικό δράμα|δραματική ταινία|βιογραφική|πολεμική|"
        u"μελόδραμα|βιογραφικό δράμα"},
    Row{kThriller, kKind, u"θρίλερ|αστυνομικό θρίλερ|ψυχολογικό θρίλερ|θρίλερ μυστηρίου"},
    Row{kAdventure, kKind, u"περιπέτεια|περιπέτεια δράσης|περιπέτεια φαντασίας"},
    Row{kCrime, kKind, u"αστυνομική περιπέτεια|αστυνομική ταινία"},
    Row{kCrime, kName, u"αστυνομική|αστυνομικό|αστυνομικά"},
    Row{kHorror, kName, u"τρόμου|τρόμος"},
    Row{kWestern, kKind, u"γουέστερν"},
    Row{kSF, kName, u"επιστημονικής φαντασίας|επιστημονική φαντασία"},
    Row{kFiction, kName, u"δράσης|δράση|μυστηρίου|φαντασίας|αισθηματική|μυθοπλασία"},
    Row{kForChildren, kKind,
        u"παιδικό|παιδικά|παιδική|παιδική σειρά|παιδική εκπομπή|κινούμενα σχέδια|παιδικό πρόγραμμα|"
        u"κινουμένων σχεδίων|παιδική ζώνη|παιδική ταινία|για παιδιά|εφηβική σειρά|παιδικές εκπομπές|"
        u"παιδικό animation"},
    Row{kForChildren, kText,
        u"παιδική σειρά|κινουμένων σχεδίων|κινούμενα σχέδια|παιδική εκπομπή|παιδικό πρόγραμμα|"
        u"προσχολικής ηλικίας|παιδική ταινία|εφηβική σειρά|παιδικά προγράμματα|παιδικής σειράς|"
        u"παιδική ζώνη"},
    Row{kForChildren, kTitle, u"παιδικό πρόγραμμα|παιδικά|παιδική ζώνη"},
    Row{kDocumentaries, kName,
        u"ντοκιμαντέρ|σειρά ντοκιμαντέρ|ταξιδιωτικό|ταξιδιωτικό ντοκιμαντέρ|ιστορικό ντοκιμαντέρ|"
        u"ταξιδιωτική εκπομπή|πολιτιστική εκπομπή|εκπαιδευτικό|εκπαιδευτική εκπομπή|πολιτισμός|"
        u"επιστήμη|αρχαιολογία|εκπαιδευτική τηλεόραση|ντοκυμαντέρ|πορτρέτο|εκπομπή πολιτισμού"},
    Row{kDocumentaries, kText,
        u"ντοκιμαντέρ|σειρά ντοκιμαντέρ|ταξιδιωτικό|ντοκυμαντέρ|ταξιδιωτική εκπομπή|ιστορική εκπομπή|"
        u"ταξιδιωτικό ντοκιμαντέρ|πολιτιστική εκπομπή|εκπομπή πολιτισμού|εκπομπή για τον πολιτισμό"},
    Row{kNews, kName,
        u"ειδήσεις|δελτίο ειδήσεων|ενημέρωση|ενημερωτική εκπομπή|ενημερωτικό|καιρός|δελτίο καιρού|"
        u"ενημερωτικό μαγκαζίνο|ειδησεογραφική|πολιτική εκπομπή|ενημερωτική|δελτίο|πολιτικά|"
        u"πρωινή ενημερωτική εκπομπή|επικαιρότητα|πολιτική συζήτηση|οικονομία"},
    Row{kNews, kText,
        u"δελτίο ειδήσεων|δελτίο καιρού|ενημερωτική εκπομπή|ενημερωτικό μαγκαζίνο|κεντρικό δελτίο|"
        u"πολιτική εκπομπή|δελτίου ειδήσεων|ειδήσεων|ενημερωτική|ειδησεογραφική|πρόγνωση του καιρού|"
        u"πολιτική συζήτηση|δημοσιογραφική εκπομπή|ειδησεογραφικό|ειδησεογραφική εκπομπή|ειδήσεις|"
        u"ενημερωτικό"},
    Row{kNews, kTitle,
        u"ειδήσεις|δελτίο|δελτίο ειδήσεων|καιρός|δελτίο καιρού|ο καιρός|news|καλημέρα ελλάδα|"
        u"κεντρικό δελτίο|συνδέσεις|ανασκόπηση ειδήσεων|βραδινό δελτίο|μεσημβρινό δελτίο", u"el"},
    Row{kEntertainment, kKind,
        u"ψυχαγωγία|ψυχαγωγική εκπομπή|τηλεπαιχνίδι|παιχνίδι|μαγειρική|εκπομπή μαγειρικής|ριάλιτι|"
        u"talk show|σόου|ψυχαγωγικό|εκπομπή ψυχαγωγίας|ψυχαγωγική|μαγκαζίνο|μαγειρικής|"
        u"ψυχαγωγικό μαγκαζίνο|κουίζ|τοκ σόου|σατιρική εκπομπή|πρωινή εκπομπή|γυναικεία εκπομπή|"
        u"lifestyle|τηλεπαιχνίδια|reality|θέατρο|σάτιρα"},
    Row{kEntertainment, kText,
        u"ψυχαγωγική εκπομπή|τηλεπαιχνίδι|εκπομπή μαγειρικής|ριάλιτι|talk show|ψυχαγωγικό|"
        u"παιχνίδι γνώσεων|μαγειρικής|ψυχαγωγικό μαγκαζίνο|κοινωνικό ριάλιτι|διαγωνισμός μαγειρικής|"
        u"διαγωνισμό μόδας|διαγωνισμός|μαγειρική εκπομπή|σατιρική εκπομπή|παιχνίδι τύχης|"
        u"πρωινή ψυχαγωγική|reality|ριάλιτι επιβίωσης|μόδας|ανατρεπτικό show|πρωινό μαγκαζίνο|κουίζ|"
        u"παιχνίδι επιβίωσης|εκπομπή για το αυτοκίνητο|εκπομπή αυτοκινήτου|εκπομπή υγείας|"
        u"ιατρική εκπομπή|σόου|τηλεπαιχνιδιού"},
    Row{kEntertainment, kText,
        u"θέματα υγείας|γεύσεων|γαστρονομικό|συνταγές|συνταγή|chef|ψυχαγωγίας", u"el"},
    Row{kSports, kText,
        u"αθλητικές|αθλητική|αθλητικές καριέρες|ιστιοπλοΐας|τριάθλου|ποδηλασίας|αγώνων αυτοκινήτου|"
        u"αγώνα ποδοσφαίρου", u"el"},
    Row{kMusic, kKind,
        u"μουσική|μουσική εκπομπή|μουσικό πρόγραμμα|συναυλία|μουσικό|όπερα|μουσικό βίντεο|βιντεοκλίπ|"
        u"συναυλίες|μουσικό μαγκαζίνο"},
    Row{kMusic, kText,
        u"μουσική εκπομπή|συναυλία|μουσικό πρόγραμμα|βίντεο κλιπ|βιντεοκλίπ|μουσικό ταξίδι|τραγούδια|"
        u"μουσικό αφιέρωμα|παραδοσιακή μουσική|μουσικό μαγκαζίνο|best hits|hits", u"el"},
    Row{kSports, kKind,
        u"αθλητικά|αθλητική εκπομπή|ποδόσφαιρο|μπάσκετ|αθλητικό|αγώνας|αθλητισμός|στίβος|τένις|βόλεϊ|"
        u"αθλητικό μαγκαζίνο|αθλητικές εκπομπές|αγώνες|μηχανοκίνητα"},
    Row{kSports, kText,
        u"αθλητική εκπομπή|αθλητικές ειδήσεις|αθλητικά νέα|αγώνες αυτοκινήτων|αγώνων ποδηλασίας|"
        u"αγώνας μπάσκετ|αγώνας ποδοσφαίρου|αθλητικό μαγκαζίνο|ποδοσφαιρικό|αθλητικό|"
        u"αθλητική ενημέρωση|ποδοσφαιρική", u"el"},
    Row{kSports, kTitleStart,
        u"αγώνας|ποδόσφαιρο|μπάσκετ|αθλητικά|αθλητικό|αθλητική κυριακή|τένις|βόλεϊ|στίβος|super league", u"el"},
    Row{kNothing, kText,
        u"εκπομπή πωλήσεων|τηλεπώληση|τηλεπώλησης|τηλεοπτικών αγορών|τηλεαγορές|τηλεμάρκετινγκ|"
        u"τηλεπωλήσεις|τηλεοπτικό οδηγό αγορών|κλείσιμο προγράμματος|"
        u"δεν υπάρχουν πληροφορίες προγράμματος|εκπομπή τηλεπώλησης"},
    Row{kNothing, kName,
        u"τηλεπωλήσεις|τηλεπώληση|τηλεμάρκετινγκ|διαφημίσεις|θρησκευτικά|θρησκευτική εκπομπή"},
    Row{kNation, kLead,
        u"ελληνικ*|αμερικ*|γαλλικ*|βρετανικ*|ιταλικ*|γερμανικ*|ισπανικ*|τουρκικ*|αγγλικ*|παραγωγής|"
        u"μεξικάνικ*|ρωσικ*|ξένη", u"el"},
    Row{kPresented, kText,
        u"εκπομπή|παρουσιάζει|παρουσίαση|παρουσιαστής|παρουσιάστρια|καλεσμένος|καλεσμένοι|καλεσμένη|"
        u"συνεντεύξεις|οικοδεσπότης|διαγωνιζόμενοι", u"el"},
    // Turkish
    Row{kFiction, kName, u"aile|tarihi|savaş|biyografi|gizem"},
    Row{kEntertainment, kName, u"sağlık|moda|kuşak|yaşam tarzı"},
    Row{kSeries, kKind,
        u"dizi|yerli dizi|yabancı dizi|dizi film|diziler|drama dizisi|komedi dizisi|polisiye dizi|"
        u"pembe dizi|durum komedisi|mini dizi", u"tr"},
    Row{kSeries, kName | kText, u"yerli dizi|yabancı dizi|komedi dizisi|drama dizisi|dizisi"},
    Row{kMovies, kKind,
        u"film|yerli film|yabancı film|sinema|sinema filmi|türk filmi|filmler|kısa film|aksiyon filmi", u"tr"},
    Row{kMovies, kText, u"sinema filmi|türk filmi|aksiyon filmi|yerli sinema|yabancı sinema|türk sineması"},
    Row{kMovies, kTitle, u"sinema|türk sineması|yerli sinema|yabancı sinema|sinema filmi", u"tr"},
    Row{kComedy, kName, u"komedi"},
    Row{kFiction, kName, u"aksiyon|macera|romantik|gerilim|polisiye|bilim kurgu|fantastik|korku|suç|dram"},
    Row{kForChildren, kKind,
        u"çocuk|çizgi film|animasyon|çocuk programı|çizgi dizi|çocuk kuşağı|çocuklar|çizgi filmler"},
    Row{kForChildren, kText, u"çizgi film|çocuk programı|çocuk kuşağı|çizgi dizi|çocuklar için"},
    Row{kDocumentaries, kName,
        u"belgesel|belgeseller|gezi|eğitim|kültür|kültür sanat|tarih|doğa|yaşam belgeseli|"
        u"gezi programı|belgesel dizi|kültür-sanat"},
    Row{kDocumentaries, kText, u"belgesel|belgeseli|gezi programı"},
    Row{kNews, kName,
        u"haber|haberler|haber programı|hava durumu|güncel|ekonomi|siyaset|haber bülteni|tartışma|"
        u"ana haber|haber bulteni|gündem|açık oturum"},
    Row{kNews, kTitle,
        u"haber|haberler|haberleri|ana haber|hava durumu|haber bülteni|günün manşetleri|gündem", u"tr"},
    Row{kEntertainment, kKind,
        u"eğlence|yarışma|talk show|show|magazin|yemek|yaşam|kadın|yemek programı|yarışma programı|"
        u"eğlence programı|kadın programı|magazin programı|reality show|kuşak programı|sohbet|"
        u"gündüz kuşağı|söyleşi", u"tr"},
    Row{kEntertainment, kText,
        u"yarışma programı|yemek programı|eğlence programı|kadın programı|magazin programı|talk show|"
        u"yarışması|kuşak programı"},
    Row{kMusic, kKind, u"müzik|müzik programı|konser|klip|klipler|müzik eğlence"},
    Row{kMusic, kText, u"müzik programı|klipler|video klip"},
    Row{kSports, kKind,
        u"spor|futbol|basketbol|spor programı|voleybol|tenis spor|güreş|maç|motor sporları", u"tr"},
    Row{kSports, kTitleStart, u"spor|futbol|basketbol|voleybol|süper lig|trendyol süper lig", u"tr"},
    Row{kNothing, kName, u"reklam|tanıtım|dini|din|kapanış|istiklal marşı|alışveriş|teleshop"},
    // Latvian, Lithuanian and Estonian
    Row{kHorror, kName, u"šausmas|šausmu filma|siaubo filmas|õudus"},
    Row{kSeries, kKind,
        u"seriāls|seriāli|komēdijseriāls|krimināldrāma seriāls|detektīvseriāls|daudzsēriju filma|"
        u"serialas|serialai|sari|telesari|draamasari|komöödiasari|krimisari|telenovele|seriālu|"
        u"drāmas seriāls|daudzsēriju mākslas filma|krimiseriāls|telesērija|komēdiju seriāls|TV seriāls|"
        u"melodrāmu seriāls"},
    Row{kSeries, kText, u"seriāls|komēdijseriāls|detektīvseriāls|daudzsēriju|serialas"},
    Row{kMovies, kKind,
        u"filma|filmas|spēlfilma|mākslas filma|kinofilma|vaidybinis filmas|mängufilm|kino|īsfilma|"
        u"televīzijas filma|ģimenes filma", u"lv lt et"},
    Row{kMovies, kText, u"spēlfilma|mākslas filma|vaidybinis filmas|mängufilm"},
    Row{kComedy, kKind, u"komēdija|romantiska komēdija|kinokomēdija|komöödia"},
    Row{kDrama, kKind, u"drāma|melodrāma|romantiska drāma|kriminaaldraama"},
    Row{kThriller, kKind, u"trilleris|trileris|spraiga sižeta filma|asa sižeta filma"},
    Row{kCrime, kName, u"krimināldrāma|detektīvs|detektīvfilma"},
    Row{kAdventure, kName, u"piedzīvojumu filma|piedzīvojumi"},
    Row{kForChildren, kKind,
        u"bērniem|animācijas filma|multfilma|animācija|animācijas seriāls|bērnu|multiplikācijas filma|"
        u"vaikams|animacinis|lastele|multifilm|animasari|multfilmas|raidījums bērniem|filma bērniem|"
        u"animacinis filmas|lastesari|ģimenes animācija"},
    Row{kForChildren, kText, u"animācijas filma|animācijas seriāls|bērniem|multfilma|multfilmas"},
    Row{kDocumentaries, kName,
        u"dokumentāla filma|dokumentālā filma|dokumentāls|dokumentālais seriāls|dokumentāls seriāls|"
        u"dokumentika|daba|zinātne|ceļojumi|dokumentinis|dokumentaal|dokumentaalfilm|dokumentaalsari|"
        u"izglītojošs|dokumentāla sērija|dokumentālo filmu sērija|vēsture|kultūra|dokumentālā drāma|"
        u"izzinošs raidījums|pažintinė laida|dokumentālās filmas"},
    Row{kDocumentaries, kText,
        u"dokumentāla|dokumentālā|dokumentāls|dokumentālais|dokumentālu|dokumentālo"},
    Row{kNews, kName,
        u"ziņas|laika ziņas|informatīvs|aktuālais|žinios|orai|uudised|ilm|analītisks raidījums|"
        u"diskusija|informatīvi analītisks raidījums|ziņu raidījums|diskusiju raidījums|publicistika|"
        u"orų prognozė|informācija|sabiedriski politisks raidījums"},
    Row{kNews, kTitle,
        u"ziņas|laika ziņas|panorāma|dienas ziņas|nakts ziņas|rīta panorāma|šodienas jautājums|"
        u"tautas panorāma|žinios|orai|de facto|tv3 ziņas|kas notiek latvijā", u"lv lt"},
    Row{kNews, kText, u"ziņu raidījums|informatīvi analītisks|ziņu izlaidums|laika ziņas|laika prognoze"},
    Row{kEntertainment, kKind,
        u"šovs|raidījums|izklaide|realitātes šovs|spēle|sarunu šovs|kulinārija|viktorīna|izklaidējošs|"
        u"realitātes seriāls|izklaides raidījums|kulinārijas raidījums|dzīvesstils|erudīcijas spēle|"
        u"humora šovs|pramoginė laida|meelelahutus|laida|talantu šovs|TV spēle|kulinārs|"
        u"dzīvesstila raidījums|TV žurnāls|humors"},
    Row{kEntertainment, kText,
        u"realitātes šovs|sarunu šovs|izklaides šovs|kulinārijas raidījums|talantu šovs|humora šovs|"
        u"TV spēle|erudīcijas spēle|muzikālais šovs|realitātes"},
    Row{kMusic, kKind,
        u"mūzika|koncerts|muzikāls|muzika|koncertas|muusika|kontsert|muzikāls raidījums|"
        u"mūzikas raidījums|koncertuzvedums|mūzikas videoklipi|koncertieraksts"},
    Row{kMusic, kTitle, u"koncerts|koncertas"},
    Row{kSports, kKind,
        u"sporta|sporta ziņas|futbols|basketbols|hokejs|teniss|krepšinis|futbolas|jalgpall|korvpall|"
        u"sporta raidījums|sportas|biatlons|volejbols|sporto laida"},
    Row{kNothing, kName,
        u"televeikals|TV veikals|reklāma|dievkalpojums|teleparduotuvė|telepood|pārraides beigas"},
};
// clang-format on

} // namespace

std::span<const Row> otherRows() {
    return kRows;
}

} // namespace guide::genres
