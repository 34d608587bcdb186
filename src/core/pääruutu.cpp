// The main screen's figures: the money format, the gauges with their guards, the hint texts.
#include "pääruutu.h"

#include <map>

#include "../animals/eläimet.h"
#include "musiikki.h"
#include "päivä.h"
#include "sää.h"
#include "peli.h"
#include "viestit.h"
#include "vikatila.h"

namespace tanhua {

std::string RahaMuoto(double r) {
    // The test is on the unrounded cash: 999999.6 shows "1000000".
    if (r < 1000000) return Suoraan(Str(Round(r)));
    if (r < 1000000000) return Suoraan(Str(Round(r / 1000000, 2))) + " Miljoonaa";
    return Suoraan(Str(Round(r / 1000000000, 1))) + " Miljardia";
}

std::string RahaKylttiMuoto(double r) {
    if (r < 1000000) return Str(CSng(r));
    return RahaMuoto(r);
}

namespace {
// A gauge of a size: a size at 0 or below goes back to its default and isn't drawn this time.
Mittari Mittaa(double määrä, Single& koko, double oletus) {
    if (koko <= 0) {
        Aseta(koko, oletus);
        return {0, false};
    }
    return {static_cast<int>(Round(määrä / koko * 100)), true};
}
}  // namespace

void Päivitälukemat(Peli& peli) {
    if (!peli.näkymä.PääruutuNäkyvissä) return;
    Muuttujat& m = peli.m;
    Lukemat& l = peli.näkymä.lukemat;
    l.Rahaz = RahaMuoto(m.Raha);
    l.Rahatilaz = l.Rahaz;
    l.liikevaihtoNäkyy = m.Työ[Kirjanpitäjä] > 0;
    l.liikevaihtoz = Suoraan(Str(Round(m.Liikevaihto)));
    l.Päiväz = Str(m.Päivä);
    l.Kuukausiz = Str(m.Kuukausi);
    l.Vuosiz = Str(m.Vuosi);
    l.Vuodenaikaz = m.Vuodenaika;
    l.Tausta = VuodenajanTausta(m.Vuodenaika.empty() ? "Kesä" : m.Vuodenaika);
    if (m.Var[Rehu] < 0) Aseta(m.Var[Rehu], 0);
    l.mittarit[0] = Mittaa(m.Var[Rehu], m.Koko_Siilo, 100);
    l.mittarit[1] = Mittaa(Round(VarastoKuorma(m)), m.Koko_Varasto, 100);
    l.mittarit[2] = Mittaa(Navettakuorma(m), m.Koko_Navetta, 10);
    l.mittarit[3] = {m.Hygienia, true};
    l.tähdetNäkyvät = m.TähtiLukitus;
    l.tähtiä = m.Tähdet;
    l.sää = peli.näkymä.SääKuva >= 0 ? peli.näkymä.SääKuva : SääKuvaPilvisyydestä(m.Pilvisyys, m.Lämpötila);
    l.Versio = "v " + Str(m.Versio);
}

void AvaaAlaruutu(Peli& peli, const std::function<void()>& avaa) {
    peli.näkymä.PääruutuNäkyvissä = false;
    avaa();
    NäytäRaha(peli);
}

void NäytäRaha(Peli& peli) { peli.näkymä.lukemat.Rahatilaz = RahaKylttiMuoto(peli.m.Raha); }

void PalaaPääruutuun(Peli& peli) {
    Näkymä& n = peli.näkymä;
    n.PääruutuNäkyvissä = true;
    const bool auki = !peli.m.TähtiLukitus || peli.m.Tähdet >= 1;
    n.Command5Käytössä = auki;
    n.Command9Käytössä = auki;
    EläintenKunto(peli);
    Päivitälukemat(peli);
    if (peli.m.OhjeetPäällä) n.Ohje = Ohjeteksti("Tervetuloa");
}

bool LopetaKysymys(Peli& peli) {
    SoitaÄäni(peli, "klik");
    return KysyKyllä(peli, "Oletko varma että lopetat pelin suoraan ilman eläkkeelle siirtymistä?");
}

void Lopeta(Peli& peli) {
    // The music is closed on the way out; a failure there still lets the program end.
    OmallaLaatikolla(
        peli, "Moduulissa. Lopettaessa tanhua peliä.", [&] { LopetaMidi(peli); },
        [](const Vika&) {
            return std::string(
                "Tanhua ei ehkä kyennyt sammuttamaan oikein kaikkia sen osia, kun olet jatkanut ja tanhua on "
                "sammutettu tarkasta yhdistelmällä (ctrl + alt + del) jäikö tanhuasta mitään sovelluksia auki. "
                "Todennäköisesti peli osasi kuitenkin sammuttaa itse kaikki sovellukset. Jos sovelluksia kuitenkin "
                "on jäänyt auki, ilmoita asiasta pelin tekijälle.");
        });
    peli.kanavat.Loppu();
}

const std::string& Ohjeteksti(const std::string& kontrolli) {
    static const std::map<std::string, std::string> tekstit{
        {"Command1", "Tästä valikosta pääset ostamaan eläimiä. Eläimet ovat pelin tärkein osa jolla lähdet rakentamaan maatilaasi. Ensimmäinen hyvä valinta pelissä on ostaa eläimiä."},
        {"Command2", "Tästä valikosta pääset ostamaan rakennuksia maatilallesi. Voit myös laajentaa varastojasi, siiloa tai navettaa. Lisäksi uusilla jalostus rakennuksilla voit päästä tuottamaan uusia tuotteita."},
        {"Command3", "Tämä valikko siirtää sinut tuote valikoimaan. Tuotteista voit ostaa eläimille ravintoa, eli rehua. Lisäksi voit myydä tuotteista eläimiesi tuottamia tuotteita, joilla tienaat rahaa."},
        {"Command4", "Tämä valikko kuluttaa yhden päivän. Päivän aikana eläimet syövät rehua, tuottavat sekä jalostuslaitokset, työntekijät ja koneistukset tuottavat jalostustuotteita. Joka 30 päivä vaihtuu kuukausi, milloin maksat laskusi ja näet kuukauden tuotantosi."},
        {"Command5", "Tämä valikko sisältää metsiin sekä peltoihin liittyvät asiat. Voit ostaa peltoja tai metsiä tai vaikka kylvää syksyllä peltosi. Tässä vaiheessa sinun ei kannata perehtyä maa-alueisiin niiden kalliin hinnan takia."},
        {"Command6", "Tämä valikko sisältää kaiken pankki toiminnan, niin lainoista, talletuksista, porssikursseista aina vakuutuksiin asti. Sinun on hyvä alussa tarkasta mitä vakuutuksia tulet tarvitsemaan tilallesi ja ehkä myös ottaa ne. Hädän tullen pieni laina ei ole pahitteeksi."},
        {"Command7", "Tämä valikko sisältää tilannekatsauksen, tilanteen tallenntamisen, vanhan tilanteen lataamisen sekä eläkkeelle jäämisen. Sinun on syytä tarkastaa lähemmin tilanteen tallentamista, jota tulet tarvitsemaan. Tilanne on aina syytä tallentaa ennen isoja investointeja."},
        {"Command8", "Tämä valikko sisältää työntekijöiden palkkauksen, niiden palkkojen maksun sekä irtisanomiset. Sinun ei ole syytä vielä perehtyä tähän valikkoon."},
        {"Command9", "Valikko sisältää tuotantoon, jalostamiseen sekä lisä tarvikkeisiin liittyviä laitteita sekä koneita. Näillä välineillä saat parannettua tilasi tuotantoa, perushintoja tai muuta vastaavaa."},
        {"Command10", "Sopimukset sisältävät eri firmojen kanssa tehdyt tuote sopimukset. Sopimukset edellyttävät pitkän aikavälin tuotantoa sekä sopimusten määrä rajoissa pysymistä."},
        {"Hepotalli", "Tämä valikko sisältää hevostallin valinnat, kuten ratsastustuntejen hinnoittelun. Tätä valikkoa et tarvitse pelissä kuin harvoin."},
        {"Stat", "Tämä valikko on oivallinen väline tutkia tilasi tuotantoa brutto tai netto käyrinä. Statistiikka näyttää sinulle tilasi tuotannon sekä kulut kätevästi."},
        {"Lopetus", "Tämä valikko sulkee tanhuan välittömästi, ilman eläkkeelle jäämistä."},
        {"PlayerLogo", "Valikko avaa midi soittimen, josta voit valita soitettavan kappaleen tai sammuittaa jo soivan."},
        {"Puhelin", "Puhelin ilmoittaa sinulle, jos joku on jättänyt puhelinvastaajaasi kyselyn mahdollisesta sopimuksesta eri tuotteiden kanssa."},
        {"Rahaz", "Tästä näet käteismäärän. Palkkaamalla kirjanpitäjän näet myös liikevaihdon."},
        {"liikevaihtoz", "Liike vaihto kertoo sinulle kyseisen kuukauden kulut ja menot. Liikevaihdosta näet todellisen kuukauden tuoton ja voit varautua paremmin kuukauden vaihteen laskuihin ja muihin menoihin."},
        {"Image1", "Mittarit kertovat sinulle rehutilanteen, varastossa olevat tuotteet, eläinten määrän navetassa sekä tilan hygienian. Näitä mittareita tarkkaillessa on helppo pysyä mukana rehun kulutuksessa, tuotteiden myynneissä tai eläinten lisääntymisessä."},
        {"Image2", "Päivämäärästä näet milloin kuukauden päätös on tulossa sekä näet vuodenajan. Vuodenaika vaikuttaa tuotteiden tuotantoon joko positiivisessa tai negatiivisessä mielessä."},
        {"Tervetuloa", "Tervetuloa ensimmäistä kertaa tanhua pelin pariin. Tämä on tanhuan pää valikko, josta kuljet eri paikkoihin valikkonappejen avulla. Alhaalla näet napit, joita painamalla pääset ostamaan eläimiä, rakennuksia, maa-alueita tai muita tarpeellista."},
    };
    static const std::string tyhjä;
    const auto it = tekstit.find(kontrolli);
    return it == tekstit.end() ? tyhjä : it->second;
}

}  // namespace tanhua
