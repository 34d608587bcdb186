// The failure reporter: texts, the count of eight, the silence after it, guarded steps.
#include "vikatila.h"

#include <new>

#include "peli.h"
#include "viestit.h"

namespace tanhua {

namespace {
const std::string kLf = "\n";
const std::string kVäli20(20, ' ');
const std::string kKuten53 =
    "Olet todennäköisesti poistanut tai nimennyt jostain kansiosta tiedoston jota tarvitaan. Ongelma "
    "korjaantuu palauttamalla tiedosto takaisin tai asentamalla pelin uudestaan.";
}  // namespace

std::string Ratkaisuteksti(int numero) {
    switch (numero) {
        case 6:
            return "Pelin jokin muuttuja ylitti sen maksimiarvon. Jos pelasit tilannetta missä oli satoja "
                   "miljardeja rahaa tai jotain muuta ominaisuutta, aiheutti tämä mahdollisesti ongelman. "
                   "Vältä jatkossa suuruudenhullujen numeroiden tavoittelu!";
        case 13:
            return "Olet kirjoittanut pelissä numeron tilalle kirjaimen tai muun merkin. Korjaa ongelma "
                   "jatkamalla peliä ja vaihtamalla merkit numeroiksi";
        case 52:
            return "Tiedostosta ladattaessa avattiin tietoa joka ei täsmää pelin koodiin. Olet "
                   "todennäköisesti muokannut tiedostojen sisältöä tai nimennyt niitä uudestaan. Ongelma "
                   "korjaantuu vasta kun tiedostot on palautettu ennalleen. Ongelman jatkuessa asenna peli "
                   "uudestaan.";
        case 53:
        case 76:
            return kKuten53;
        case 62:
            return "Tiedosto jota avattiin on väärän kokoinen. Olet todennäköisesti muokannut tiedostojen "
                   "sisältöä tai nimennyt niitä uudestaan. Ongelma korjaantuu vasta kun tiedostot on "
                   "palautettu ennalleen. Ongelman jatkuessa asenna peli uudestaan.";
        case 380:
            return "Olet todennäköisesti muuttanut tiedostojen sisältöä. Ongelma korjaantuu vasta kun "
                   "tiedostot on palautettu ennalleen. Jos ongelma ei korjaannu asenna peli uudestaan.";
        default:
            return "Tähän ongelmaan ei löydy ratkaisua";
    }
}

std::string VikaTilaTeksti(const Peli& peli, const Vika& vika) {
    const Muuttujat& m = peli.m;
    std::string ratkaisu = Ratkaisuteksti(vika.Numero());
    // Opening a save of another version explains the version whatever the failure was.
    if (m.VikaPaikka == paikka::Avaus && m.Versio != m.TilanteenVersio) {
        ratkaisu = "Tämän tanhuan versio on " + Str(m.Versio) +
                   " ja ladattavan tilanteen data:n mukaan tilanteen versio on " + Str(m.TilanteenVersio) +
                   ". Joudut joko jatkamaan tilannetta vanhemmalla tanhua:n versiolla tai aloittamalla uusi "
                   "tilanne. Jos ongelma ei kuitenkaan johdu tästä ota yhteyttä pelin tekijään.";
    }
    std::string t;
    t += "Jossain kohtaa pelissä esiintyi vika, mutta peli yrittää itse ratkaista ongelman." + kLf;
    t += "Jos ohjelma kaatuu seuraavaksi, voit jatkaa tilannettasi lataamalla Autosave.sav tilanteen." + kLf + kLf;
    t += kVäli20 + "Vian paikka : " + m.VikaPaikka + kLf;
    t += kVäli20 + "Vian syy : vikanro." + std::to_string(vika.Numero()) + "  Selite : " + vika.Selite() + kLf +
         kLf;
    t += "Ratkaisu:" + kLf + ratkaisu + kLf;
    if (m.VikaLaskuri > 4) {
        t += kLf + kLf + "Huom! pelissä on tullut jo " + std::to_string(m.VikaLaskuri) +
             " ongelmaa. Peliä ei todennäköisesti voida enään jatkaa normaalisti. Sulje peli ja yritä "
             "käynnistää uudestaan. Jos ongelma ei korjaannu asenna peli uudestaan. Jos ongelmaa ei "
             "ratkaista vieläkään lataa peli sivustolta uudestaan." +
             kLf;
    }
    t += kLf + kVäli20 + "Yritetäänkö jatkaa virhetilanteesta, vai ohitetaanko ongelmakohta?";
    return t;
}

void VikaTila(Peli& peli, const Vika& vika) {
    Muuttujat& m = peli.m;
    Lisää(m.VikaLaskuri, 1);
    if (m.VikaLaskuri > 8) return;
    if (m.VikaPaikka.empty()) m.VikaPaikka = "Tuntematon / määrittämätön";
    const std::string teksti = VikaTilaTeksti(peli, vika);
    const std::string paikkaTeksti = m.VikaPaikka;
    m.VikaPaikka.clear();
    SoitaÄäni(peli, "virhe");
    m.VikaJatkuu = peli.kanavat.Vikalaatikko(paikkaTeksti, vika.Numero(), teksti);
}

Vika VikaPoikkeuksesta(std::exception_ptr poikkeus) {
    try {
        std::rethrow_exception(poikkeus);
    } catch (const Vika& v) {
        return v;
    } catch (const std::bad_alloc&) {
        return Vika(7, VikaSelite(7));
    } catch (const std::exception& e) {
        return Vika(51, VikaSelite(51) + ": " + e.what());
    } catch (...) {
        return Vika(51, VikaSelite(51));
    }
}

bool Vartioitu(Peli& peli, std::string_view paikkaTeksti, std::initializer_list<Askel> askeleet) {
    for (const Askel& askel : askeleet) {
        try {
            askel();
        } catch (...) {
            const Vika vika = VikaPoikkeuksesta(std::current_exception());
            peli.m.VikaPaikka = std::string(paikkaTeksti);
            VikaTila(peli, vika);
            if (!peli.m.VikaJatkuu) return false;
        }
    }
    return true;
}

void OmallaLaatikolla(Peli& peli, std::string_view paikkaTeksti, const Askel& askel,
                      const std::function<std::string(const Vika&)>& laatikko) {
    try {
        askel();
    } catch (...) {
        const Vika vika = VikaPoikkeuksesta(std::current_exception());
        peli.m.VikaPaikka = std::string(paikkaTeksti);
        peli.kanavat.Laatikko(laatikko(vika));
    }
}

}  // namespace tanhua
