#include "demo/Words.h"

namespace guide::words {

// Trades have nominative, genitive and accusative; places a name, "in", "from" and "to".
const char16_t* const kTurkish = uR"(
first_m=
  Alpay
  Behçet
  Cahit
  Doğan
  Ekrem
  Fahri
  Güven
  Haldun
  Kenan
  Levent
  Münir
  Nejat
  Orhun
  Rüştü
  Süreyya
  Turgay
  Yılmaz
first_f=
  Aslı
  Belgin
  Çiğdem
  Defne
  Feriha
  Gönül
  Hüma
  Leman
  Melahat
  Nilüfer
  Perihan
  Selvi
  Şükran
  Türkan
  Yasemin
last=
  Akçınar
  Bağcıoğlu
  Çakıltaş
  Denizaltı
  Erguvan
  Fındıkkıran
  Gökçedağ
  Karabiber
  Kuşçu
  Leylek
  Narçiçeği
  Ortancalı
  Sarıkavak
  Şimşirli
  Taşpınar
  Yelkenci
man=
  {first_m} {last}
woman=
  {first_f} {last}
meslek=
  saatçi/saatçinin/saatçiyi
  kayıkçı/kayıkçının/kayıkçıyı
  postacı/postacının/postacıyı
  kütüphaneci/kütüphanecinin/kütüphaneciyi
  balıkçı/balıkçının/balıkçıyı
  fırıncı/fırıncının/fırıncıyı
  terzi/terzinin/terziyi
  makinist/makinistin/makinisti
  noter/noterin/noteri
yer=
  Zeytinpınar/Zeytinpınar'da/Zeytinpınar'dan/Zeytinpınar'a
  Mavikuyu/Mavikuyu'da/Mavikuyu'dan/Mavikuyu'ya
  Yelkentepe/Yelkentepe'de/Yelkentepe'den/Yelkentepe'ye
  Leylekköy/Leylekköy'de/Leylekköy'den/Leylekköy'e
  Karadutlu/Karadutlu'da/Karadutlu'dan/Karadutlu'ya
home_country=
  Türkiye/tr/Türkiye
far_country=
  ABD/en/ABD
country=
  Türkiye/tr/Türkiye
  Türkiye/tr/Türkiye
  Türkiye/tr/Türkiye
  Fransa/fr/Fransa
  ABD/en/ABD
facts_film_comedy=
  Komedi ({country} {year}).
facts_film_drama=
  Dram ({country} {year}).
facts_film_crime=
  Polisiye ({country} {year}).
facts_film_thriller=
  Gerilim ({country} {year}).
facts_film_scifi=
  Bilimkurgu ({country} {year}).
facts_film_fantasy=
  Fantastik film ({country} {year}).
facts_film_horror=
  Korku filmi ({country} {year}).
facts_film_western=
  Kovboy filmi ({country} {year}).
facts_film_adventure=
  Macera filmi ({country} {year}).
facts_film_romance=
  Aşk filmi ({country} {year}).
facts_fairytale=
  Masal ({country} {year}).
facts_doc=
  Belgesel ({country} {year}).
facts_nature=
  Doğa belgeseli ({country} {year}).
facts_history=
  Tarih belgeseli ({country} {year}).

film_comedy=
  {^m:meslek.1} Tatilde @ {gulmece}
  {^home:yer.2} Düğün Var @ {gulmece}
  Kaynana Taksitle @ {gulmece}
  Üç Kuzen Bir Keçi @ {gulmece}
  Dedemin Bir Fikri Var @ {gulmece}
  Çarşamba Günü Kaybolup Perşembe Günü Bulunan Postacının Olağanüstü Hikâyesi @ {gulmece}
  Bakana Baklava @ {gulmece}
gulmece=
  Bir daha yalan söylemeyeceğine söz verdi. Kahvaltıya kadar dayanabildi.
  Yıllardır konuşmayan aile aynı sofrada buluşur. Keşke fırın da çalışsaydı.
  Yanlış adrese giden bir paket yüzünden {m:meslek.1} kasabanın en çok aranan adamı olur.
film_drama=
  {^home:yer.2} Son Yaz @ {agirlik}
  {^m:meslek.2} Dönüşü @ {agirlik}
  Babamın Paltosu @ {agirlik}
  Yağmurdan Sonra Sessizlik @ {agirlik}
  Kül ve Bal @ {agirlik}
agirlik=
  Yirmi yıl sonra köyüne dönen {m:meslek.1} evini yerinde bulur. İnsanlar ise onun istediğinden fazlasını hatırlar.
  İki kardeş baba evini satmak zorundadır. Biri unutmak ister, ötekinin gidecek yeri yoktur.
film_crime=
  {^m:meslek.2} Ölümü @ {cinayet}
  {^home:yer.2} Cinayet @ {cinayet}
  Altı Tanık @ {cinayet}
  Gece Treninden İnmeyen Adam @ {cinayet}
cinayet=
  Kilitli bir çalışma odası, kırık bir sürahi ve birbirini kollayan altı akraba. Komiser işe aşçıdan başlar.
  {^m:meslek.1} bir kuyunun dibinde bulunur. Bütün köy orada hiç kuyu olmadığına yemin eder.
film_thriller=
  Üçüncü Telefon @ {gerilim}
  {^home:yer.4} Son Tren @ {gerilim}
  Sabah Olmadan @ {gerilim}
gerilim=
  Bir dağ evi, kar fırtınası, yedi misafir. Sabaha sekiz kişi olurlar ama kimse içeri girmemiştir.
film_scifi=
  Ay İstasyonu @ {gelecek}
  Gölgesiz Gezegen @ {gelecek}
gelecek=
  Mürettebat yüz yıl erken uyanır. Gemide yalnızca aşçı eksiktir.
film_fantasy=
  Yedi Kilitli Kitap @ {buyu}
  Rüzgârın Kızı @ {buyu}
  Unutulmuş Adlar Adası @ {buyu}
buyu=
  Ülke kışını yitirmiştir. Onu ancak ondan korkmayan biri bulabilir.
film_horror=
  Yedinci Misafir @ {korku}
  Bodrumu Kilitleme @ {korku}
korku=
  Genç çift evi yok pahasına alır. Tek bir şart vardır ve daha ilk gece unutulur.
film_western=
  Yıldızsız Şerif @ {bati}
  Son Posta Arabası @ {bati}
bati=
  Silah taşımanın yasak olduğu kasabaya bir yabancı gelir. Ötekiler yasağı duymamış gibidir.
film_adventure=
  {^home:yer.3} Gelen Harita @ {uzak}
  Haritanın Sonunda @ {uzak}
  Altın Kervan @ {uzak}
uzak=
  Eski bir harita, yarım bir para ve sudan korkan bir kaptan. Hazine avı başlayabilir.
film_romance=
  İkinci Peronda Bir Öpücük @ {sevda}
  Lavanta Pazarı @ {sevda}
  {^m:meslek.1} ile Bir Yaz @ {sevda}
sevda=
  Yanlış trende tanıştılar. İkisi de biliyordu, hiçbiri inmedi.
soap=
  Ihlamurlu Konak @ {bolum} @ {olay}
  Veresiye Kalpler @ {bolum} @ {olay}
series=
  Kayıkçının Kızları @ {bolum} @ {olay}
  Sahil Kliniği @ {bolum} @ {olay}
  Eski Mahalle @ {bolum} @ {olay}
  Zeytinlikte @ {bolum} @ {olay}
  Uzak İstasyon @ {bolum} @ {olay}
sitcom=
  Üst Komşular @ {bolum} @ {kargasa}
  Apartman Toplantısı @ {bolum} @ {kargasa}
bolum=
  Beklenmedik Misafir
  Eski Borçlar
  İmzasız Mektup
  Paspasın Altındaki Anahtar
  İlk Kar
  Sofrada Bir Yer
  Fırtınadan Sonra
olay=
  Perihan öldü sandığı adamla karşılaşır. Kenan ise okumadığı bir sözleşmeyi imzalar.
  Düğün ertelenir. Damat havayı suçlar, misafirler damadı.
  Bahçede gömülü bir sandık bulunur. Açılmadan iki sahibi birden çıkar.
kargasa=
  On dakikalık toplantı gece yarısına kadar sürer. Sıra merdivenin rengindedir.
  Biri bütün apartmana lahmacun söylemiştir ama kimse üstlenmez.
cartoon=
  Bisikletli Kirpi @ {seruven} @ {masal}
  Roket Nine @ {seruven} @ {masal}
  Otçul Kurt @ {seruven} @ {masal}
seruven=
  Kayıp Terlik
  Ayı Kim Yaktı
  Büyük Su Birikintisi
  Bulut Nasıl Pişer
masal=
  Herkes kayıp şapkayı arar. Şapka en çok arayanın başındadır.
  Üç gündür yağmur yağar. Arkadaşlar mutfakta bulduklarından bir gemi yapar.
fairytale=
  Tacını Yitiren Padişah @ {evvel}
  Yedi Kardeşin Değirmeni @ {evvel}
  Altın Pınar @ {evvel}
evvel=
  Bir varmış bir yokmuş. Tacını oyunda kaybeden bir padişaha ancak dürüst bir el emeği yardım edebilirmiş.
doc=
  Son Çan Ustaları @ {bakis}
  Köprüler @ {bakis}
  Gece ve Şehir @ {bakis}
  Ekmeğin Sanatı @ {bakis}
bakis=
  Sıradan görünen her şey birinin ömrüne mal oldu. Sabrı ve şanslı bir öğleden sonrayı anlatan bir film.
nature=
  Su Samurlarıyla Bir Yıl @ {yaban}
  Kurtların Dönüşü @ {yaban}
  Göletin Altında @ {yaban}
yaban=
  Yavruların her şeyi öğrenmek için altı haftası vardır. Bu arada su yükselir.
history=
  Tuz Yolu @ {gecmis}
  Kayıp Donanma @ {gecmis}
gecmis=
  Büyük olaylar, o günlerde yemek pişirip bekleyenlerin gözünden.
travel=
  Yavaş Trenler @ {durak} @ {yol}
  Yaya Yolu @ {durak} @ {yol}
durak=
  {^home:yer.3} Denize
  Eski Kervan Yolu
  Tepedeki Köyler
yol=
  Yemekler harika, harita değil. Anlaşmak için eller yeter.
concert=
  Garda Caz @ {muzik}
  Mum Işığında Yaylılar @ {muzik}
  Kıyı Türküleri @ {muzik}
muzik=
  Elektriklerin kesildiği gece kaydedildi. Kimse fark etmedi. Şef: {man}.
takim=
  Zeytinpınarspor
  Yelkentepe İdman Yurdu
  Mavikuyu Gençlik
takim2=
  Leylekköy Birlik
  Karadutlu Demiryolu
  Liman Gücü
match=
  Futbol: {takim} – {takim2} @ {#3-34}. hafta. Anlatan: {man}.
  Basketbol: {takim} – {takim2} @ Çeyrek final serisi. Anlatan: {woman}.
  Voleybol: {takim} – {takim2} @ Kadınlar ligi. Anlatan: {woman}.
sportnews=
  Spor Haberleri @ Günün sonuçları ve puan durumu.
breakfast=
  Erguvan Sabahı @ {sabah}
  Çay Demlendi @ {sabah}
sabah=
  Haberler, hava durumu ve taze çay. {woman} ve {man} sunuyor.
news=
  {channel} Haber @ {haber}
  Haberler @ {haber}
haber=
  Yurttan ve dünyadan günün öne çıkan haberleri.
  Ne oldu, neden oldu, bundan sonra ne olacak.
weather=
  Hava Durumu @ {gok}
  Şemsiye Alsak mı @ {gok}
gok=
  Önce güneşli, sonra yağmurlu, sonra tam tersi. Sıcaklıklar mevsim normallerinde.
region=
  Bizim Kasaba @ Kimsenin uğramadığı yerlerden haberler.
talk=
  İki Koltuk @ {sohbet}
  Kravatsız @ {sohbet}
sohbet=
  {woman} tiyatroyu, atları ve uzun bir suskunluğu anlatıyor.
  Sahneyi neden bıraktı? {man} iki kez açıklıyor.
quiz=
  Üçüncü İpucu @ {soru}
  Bil de Git @ {soru}
  Kayıp Harf @ {soru}
soru=
  Üç yarışmacı, on soru, fısıldamak yok. Sunan: {man}.
  Öğretmenler itfaiyecilere karşı. Kaybeden tahtayı siler. Sunan: {woman}.
show=
  Yetenek Sokağı @ {gala}
  Bütün Köy Dans Ediyor @ {gala}
gala=
  Yarı final gecesi. Jüri sert, sihirbaz ise bir tavşan olduğunda ısrarlı. Sunan: {woman}.
magazine=
  Çevre Çepeçevre @ {insan}
  İyi Komşu @ {insan}
insan=
  Isınma giderini düşürmenin yolları ve çaydanlık tamircisi bulma sanatı.
cooking=
  Tahta Kaşık @ {yemek}
  Önce Çorba @ {yemek}
yemek=
  Üç kuşağı birbirine düşüren karnıyarık. Mutfakta: {woman}.
  Fazla armut kaldıysa: dört fikir ve bir şurup. Mutfakta: {man}.
moviemag=
  Fragman @ Haftanın filmleri ve kırk kez çekilen bir sahne.
short=
  {^home:yer.3} Kartpostal @ Çeşme başında kısa bir mola.
  Bu Akşam @ Beklerseniz neler izleyeceksiniz.
night=
  Liman Işıkları @ Gece rıhtım. Tekneler geçer.
  Akvaryum @ Sabaha kadar balıklar.
)";

} // namespace guide::words
