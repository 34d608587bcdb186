// Recording channels of the headless runner and the tests.
#include "tallentava.h"

#include <filesystem>

namespace tanhua {

std::string TallentavatKanavat::SeuraavaVastaus(const std::string& oletus) {
    if (vastaukset.empty()) return oletus;
    std::string v = vastaukset.front();
    vastaukset.pop_front();
    return v;
}

std::string TallentavatKanavat::Kysy(const std::string& teksti, int tyyli) {
    const std::string vastaus = SeuraavaVastaus(tyyli == 0 ? VASTATTU : EI);
    tapahtumat.push_back("VIESTI|" + std::to_string(tyyli) + "|" + YhdelleRiville(teksti) + "|" + vastaus);
    return vastaus;
}

void TallentavatKanavat::Kerro(const std::string& kuva, const std::string& teksti) {
    tapahtumat.push_back("IKKUNA|" + kuva + "|" + YhdelleRiville(teksti));
}

void TallentavatKanavat::ListaRivi(const std::string& rivi) { tapahtumat.push_back("LISTA|" + YhdelleRiville(rivi)); }

void TallentavatKanavat::Raportti(const RaporttiSivu& sivu) {
    raportit.push_back(sivu);
    Rivit("RAPORTTI|", sivu);
}

void TallentavatKanavat::Alue(const RaporttiSivu& alue) { Rivit("ALUE|", alue); }

void TallentavatKanavat::Loppu() {
    tapahtumat.push_back("LOPPU");
    loppu = true;
}

void TallentavatKanavat::Rivit(const char* otsake, const RaporttiSivu& sivu) {
    tapahtumat.push_back(otsake + YhdelleRiville(sivu.otsikko));
    for (const RaporttiRivi& rivi : sivu.rivit) {
        tapahtumat.push_back("RIVI|" + VäriTekstinä(rivi.väri) + "|" + std::to_string(rivi.sarake) + "|" +
                             YhdelleRiville(rivi.teksti));
    }
}

void TallentavatKanavat::Laatikko(const std::string& teksti) {
    tapahtumat.push_back("LAATIKKO|" + YhdelleRiville(teksti));
}

std::string TallentavatKanavat::Kehote(const std::string& kysymys, const std::string& oletus) {
    const std::string vastaus = SeuraavaVastaus(oletus);
    tapahtumat.push_back("KEHOTE|" + YhdelleRiville(kysymys) + "|" + vastaus);
    return vastaus;
}

void TallentavatKanavat::Ääni(const std::string& nimi) { tapahtumat.push_back("ÄÄNI|" + nimi); }

void TallentavatKanavat::MidiSoita(const std::string& tiedosto) {
    tapahtumat.push_back("MIDI|soita|" + std::filesystem::path(tiedosto).filename().string());
}

void TallentavatKanavat::MidiPysäytä() { tapahtumat.push_back("MIDI|pysäytä"); }

bool TallentavatKanavat::Vikalaatikko(const std::string& paikka, int numero, const std::string& teksti) {
    viimeisinVikateksti = teksti;
    const std::string vastaus = SeuraavaVastaus(KYLLÄ);
    tapahtumat.push_back("VIKA|" + paikka + "|" + std::to_string(numero) + "|" + vastaus);
    return vastaus == KYLLÄ;
}

}  // namespace tanhua
