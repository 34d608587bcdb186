// The music player's rules: which song plays, when the music moves on, and the boxes of a player
// that can't play. The sound itself is the channels' business.
#include "musiikki.h"

#include <algorithm>
#include <filesystem>

#include "../storage/tiedostot.h"
#include "peli.h"
#include "viestit.h"
#include "vikatila.h"

namespace tanhua {

namespace {

constexpr const char* VISTA_RIVI = "Jos omistat Windows Vista käyttöjärjestelmän on tämä todennäköinen syy ongelmaan.";

std::string VianKuvaus(const Vika& vika) {
    return "Vian numero : " + Str(vika.Numero()) + ". Vika selite : " + vika.Selite();
}

// The songs of the folder Midi (the folder's name found whatever its case), sorted by name.
std::vector<std::string> Kappaleet(const Peli& peli) {
    std::vector<std::string> nimet;
    const auto kansio = EtsiTiedosto(peli.kansiot.ohjelma, "Midi");
    std::error_code virhe;
    if (!kansio || !std::filesystem::is_directory(*kansio, virhe)) return nimet;
    for (const auto& tiedosto : std::filesystem::directory_iterator(*kansio, virhe)) {
        std::string pääte = tiedosto.path().extension().string();
        std::transform(pääte.begin(), pääte.end(), pääte.begin(), [](unsigned char c) { return std::tolower(c); });
        if (pääte == ".mid" && tiedosto.is_regular_file(virhe)) nimet.push_back(tiedosto.path().filename().string());
    }
    std::sort(nimet.begin(), nimet.end());
    return nimet;
}

// A random row other than the first, drawn again while it gives row 0. With fewer than two songs
// no draw could leave row 0: the first row is taken without a draw (none in an empty list).
void ArvoRivi(Peli& peli) {
    Soitin& s = peli.soitin;
    const long long määrä = static_cast<long long>(s.MidiFile.size());
    if (määrä < 2) {
        s.ListIndex = määrä == 0 ? -1 : 0;
        return;
    }
    long long rivi = 0;
    while (rivi == 0) rivi = peli.arvonta.U(0, määrä - 1);
    s.ListIndex = static_cast<int>(rivi);
}

void SeuraavaRivi(Soitin& s) {
    if (s.MidiFile.empty()) {
        s.ListIndex = -1;
        return;
    }
    s.ListIndex = s.ListIndex + 1 >= static_cast<int>(s.MidiFile.size()) ? 0 : s.ListIndex + 1;
}

}  // namespace

namespace {
// The two boxes of a player that can't start: where it failed, the failure, the Vista note, and
// why the game goes on silent.
void MidiVikaLaatikko(Peli& peli, const char* paikkaTeksti, const char* missä, const Vika& vika, const char* syy,
                      const char* jatko) {
    peli.m.VikaPaikka = paikkaTeksti;
    peli.kanavat.Laatikko(std::string("Tanhua suoritti vikatilan ") + missä + ".\n" + VianKuvaus(vika) + "\r\n" +
                          VISTA_RIVI + "\r\n" +
                          "Windows Vista käyttöjärjestelmä ei kykene soittamaan DirectX 8:n midi toistoa, koska " +
                          syy + jatko + ", mutta et tule kuulemaan musiikkia taustalla.");
}

// Opens the player; a failure shows the player's own box and is handed back for the start's box.
bool Alusta(Peli& peli, Vika& vika) {
    try {
        peli.kanavat.MidiAlusta();
        return true;
    } catch (...) {
        vika = VikaPoikkeuksesta(std::current_exception());
    }
    MidiVikaLaatikko(peli, "Initializoimassa Midejä", "Midien initializoimisessa", vika,
                     "Vistalla ei ole kaikkia tarvittavia .dll tiedostoja. Yksi näistä on dx8vb.dll.",
                     "Peli tulee jatkumaan muuten normaalisti");
    return false;
}
}  // namespace

void KäynnistäSoitin(Peli& peli) {
    Soitin& s = peli.soitin;
    s.MidiFile = Kappaleet(peli);
    s.ListIndex = s.MidiFile.empty() ? -1 : 0;
    Vika vika(0, "");
    s.MidiValmis = Alusta(peli, vika);
    if (s.MidiValmis) return;
    MidiVikaLaatikko(peli, "Ladattaessa DirectX 8:aa ja midejä.", "DirectX 8:n latauksessa", vika,
                     "sinulla ei ole asennettuna kaikkia vaadittavia .dll tiedostoja.",
                     "Peli tulee toimimaan muuten normaalisti");
}

void KäynnistäSoitinKerran(Peli& peli) {
    if (peli.soitin.käynnistetty) return;
    peli.soitin.käynnistetty = true;
    KäynnistäSoitin(peli);
}

bool AlustaMidi(Peli& peli) {
    Vika vika(0, "");
    return Alusta(peli, vika);
}

void SoitaMidi(Peli& peli) {
    Soitin& s = peli.soitin;
    if (!s.MidiValmis) {
        peli.kanavat.Laatikko("Midejä ei saatu alustettua. Midit eivät ehkä tule toimimaan oikein.");
        return;
    }
    try {
        if (s.ListIndex < 0 || s.ListIndex >= static_cast<int>(s.MidiFile.size())) NostaVika(VIKA_EI_TIEDOSTOA);
        const auto polku = EtsiTiedosto(peli.kansiot.ohjelma, "Midi/" + s.MidiFile[static_cast<std::size_t>(s.ListIndex)]);
        if (!polku) NostaVika(VIKA_EI_TIEDOSTOA);
        peli.kanavat.MidiSoita(polku->string());
    } catch (...) {
        peli.kanavat.Laatikko(
            "Peli ei löytänyt midejä musiikkikansiosta. Tarkasta midejen sijainti ja korjaa mahdolliset virheet. "
            "Ongelman jatkuessa ota yhteyttä pelin tekijään.");
    }
}

void PysäytäMidi(Peli& peli) {
    if (peli.soitin.MidiValmis) peli.kanavat.MidiPysäytä();
}

void LopetaMidi(Peli& peli) {
    if (peli.soitin.MidiValmis) peli.kanavat.MidiLopeta();
    peli.soitin.MidiValmis = false;
}

void SeuraavaKappale(Peli& peli) {
    if (peli.asetukset.BiisiSatunnainen) ArvoRivi(peli);
    else SeuraavaRivi(peli.soitin);
}

void DirectXEvent8_DXCallback(Peli& peli, std::optional<int> vaihtoehto) {
    if (!vaihtoehto) {
        peli.kanavat.Laatikko(
            "Direct X 8:n alustamisessa ongelma. Midi ääntä ei tulla kuulemaan.\r\n\r\n"
            "Ongelman syynä on, että sinun Windows Vista ei tue vanhempaa Direct X 8:ää, koska siitä puuttuu "
            "joitakin .dll tiedostoja. Saat äänet kuulumaan, jos ajat tarvittavat Direct X tiedostot koneellesi.\r\n\r\n"
            "Peli kuitenkin jatkuu normaaliin tapaan, vaikka musiikkia ei voidakkaan soittaa.");
        return;
    }
    // Only the end of a song moves the music on; other notices are ignored.
    if (*vaihtoehto != 1) return;
    SeuraavaKappale(peli);
    SoitaMidi(peli);
}

void AloitaMusiikki(Peli& peli) {
    if (!peli.asetukset.Musiikki) return;
    ArvoRivi(peli);
    SoitaMidi(peli);
}

void SoitinArvo(Peli& peli) {
    SoitaÄäni(peli, "siirto");
    ArvoRivi(peli);
    SoitaMidi(peli);
}

void SoitinSeuraava(Peli& peli) {
    SoitaÄäni(peli, "siirto");
    SeuraavaRivi(peli.soitin);
    SoitaMidi(peli);
}

void SoitinStop(Peli& peli) {
    SoitaÄäni(peli, "siirto");
    PysäytäMidi(peli);
}

std::vector<int> PiilotaSoitin(Peli& peli, int yläreuna) {
    SoitaÄäni(peli, "siirto");
    peli.soitin.Näkyvissä = false;
    std::vector<int> askeleet;
    if (peli.asetukset.Animaatiot)
        for (int y = yläreuna; y >= -100;) askeleet.push_back(--y);
    return askeleet;
}

std::vector<int> AvaaSoitin(Peli& peli, int lomakkeenKorkeus) {
    SoitaÄäni(peli, "siirto");
    std::vector<int> askeleet;
    const bool oliNäkyvissä = peli.soitin.Näkyvissä;
    peli.soitin.Näkyvissä = true;
    if (!peli.asetukset.Animaatiot) return {lomakkeenKorkeus / 3};
    if (oliNäkyvissä) return askeleet;
    for (int y = -200; y <= lomakkeenKorkeus / 3; ++y) askeleet.push_back(y);
    return askeleet;
}

}  // namespace tanhua
