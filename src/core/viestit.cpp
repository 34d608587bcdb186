// The game's side of the channels: one shared way to ask, tell, list and sound.
#include "viestit.h"

#include "peli.h"
#include "vikatila.h"

namespace tanhua {

std::string Rivitä(std::initializer_list<std::string> rivit) {
    std::string t;
    for (const std::string& rivi : rivit) {
        if (!t.empty() || &rivi != rivit.begin()) t += '\n';
        t += rivi;
    }
    return t;
}

std::string YhdelleRiville(const std::string& teksti) {
    std::string ulos;
    for (std::size_t i = 0; i < teksti.size(); ++i) {
        if (teksti[i] == '\r' && i + 1 < teksti.size() && teksti[i + 1] == '\n') continue;
        if (teksti[i] == '\n' || teksti[i] == '\r') ulos += "\\n";
        else ulos += teksti[i];
    }
    return ulos;
}

std::string VäriTekstinä(std::uint32_t väri) {
    return std::to_string(väri & 0xFF) + "," + std::to_string((väri >> 8) & 0xFF) + "," + std::to_string((väri >> 16) & 0xFF);
}

std::string Kysy(Peli& peli, const std::string& teksti, int tyyli) {
    Näkymä& n = peli.näkymä;
    n.MsgTeksti = teksti;
    n.MsgVastaus.clear();
    Aseta(n.MsgTyyli, tyyli);
    n.MsgVastaus = peli.kanavat.Kysy(teksti, tyyli);
    // Every button of the box clicks, in the window and headless alike, so both take its draw.
    SoitaÄäni(peli, "klik");
    return n.MsgVastaus;
}

bool KysyKyllä(Peli& peli, const std::string& teksti) { return Kysy(peli, teksti, 1) == KYLLÄ; }

void Ilmoita(Peli& peli, const std::string& teksti) { Kysy(peli, teksti, 0); }

void Kieltäydy(Peli& peli, const std::string& teksti) {
    SoitaÄäni(peli, "virhe");
    Ilmoita(peli, teksti);
}

void Kerro(Peli& peli, const std::string& kuva, const std::string& teksti) {
    Näkymä& n = peli.näkymä;
    n.IkkunaNäkyvissä = true;
    n.IkkunaKuva = kuva;
    n.IkkunaTeksti = teksti;
    peli.kanavat.Kerro(kuva, teksti);
}

void KerroJaOdota(Peli& peli, const std::string& kuva, const std::string& teksti) {
    Kerro(peli, kuva, teksti);
    peli.kanavat.OdotaIkkunaa();
    peli.näkymä.IkkunaNäkyvissä = false;
}

void LisääListaan(Peli& peli, const std::string& rivi) {
    peli.näkymä.Lista.push_back(rivi);
    peli.näkymä.ListaNäkyvissä = true;
    peli.kanavat.ListaRivi(rivi);
}

void SoitaÄäni(Peli& peli, const std::string& nimi) {
    if (!peli.asetukset.Äänitehosteet) return;
    OmallaLaatikolla(
        peli, paikka::WavÄäni,
        [&] {
            if (!peli.kanavat.ÄäniLaite()) {
                peli.kanavat.Laatikko(
                    "Tanhua on suorittanut virhetilan. Ongelman syynä on että tanhua ei löytänyt koneesta "
                    "äänikorttia tai sitä ei ole oikein asennettu. Tarkasta äänikortin toimivuus sekä sen "
                    "ajurit. Jos ongelma jatkuu yhä, valitse asetuksista äänitehosteet pois käytöstä.");
                return;
            }
            std::string tiedosto = nimi;
            if (nimi == "klik") tiedosto += std::to_string(peli.arvonta.U(1, 3));
            peli.kanavat.Ääni(tiedosto);
        },
        [](const Vika&) {
            return std::string(
                "Tanhua on suorittanut virhetilan. Ongelman syynä on virhetila wav äänien käsittelyssä. "
                "Tarkasta äänien toimivuus. Jos ongelma jatkuu yhä, valitse asetuksista äänitehosteet pois "
                "käytöstä.");
        });
}

}  // namespace tanhua
