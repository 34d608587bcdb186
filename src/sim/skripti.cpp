// The headless runner: the script's commands on one game, with recording channels.
#include "skripti.h"

#include <charconv>
#include <cstdio>
#include <limits>
#include <fstream>
#include <istream>
#include <ostream>
#include <stdexcept>

#include "core/alku.h"
#include "core/kentät.h"
#include "core/kuukausi.h"
#include "core/ohjaimet.h"
#include "core/pääruutu.h"
#include "core/päivä.h"
#include "core/vikatila.h"
#include "buildings/tarvikkeet.h"
#include "storage/tiedostot.h"

namespace tanhua {

namespace {
[[noreturn]] void Virhe(const std::string& syy) { throw std::runtime_error(syy); }

// The day's weather picture is no value of the record but the main screen's; set and print reach it.
constexpr const char* SÄÄKUVA = "SääKuva";

}  // namespace

void Ohita() { throw Ohitettu{}; }

long long Luku(const std::string& sana, const std::string& mikä, long long pienin, long long suurin) {
    long long arvo = 0;
    const char* loppu = sana.data() + sana.size();
    const auto [kohta, virhe] = std::from_chars(sana.data(), loppu, arvo);
    if (sana.empty() || virhe == std::errc::invalid_argument || kohta != loppu)
        Virhe(mikä + " must be a whole number: '" + sana + "'");
    if (virhe == std::errc::result_out_of_range || arvo < pienin || arvo > suurin)
        Virhe(mikä + " goes from " + std::to_string(pienin) + " to " + std::to_string(suurin) + ": '" + sana + "'");
    return arvo;
}

void VaadiPainettava(const Peli& peli, const std::string& ohjain) {
    if (!Painettavissa(peli, ohjain)) Ohita();
}

bool Sanat(const std::string& rivi, std::vector<std::string>& sanat) {
    sanat.clear();
    std::string sana;
    bool lainauksessa = false, onSana = false;
    for (char c : rivi) {
        if (c == '"') {
            lainauksessa = !lainauksessa;
            onSana = true;
        } else if (!lainauksessa && (c == ' ' || c == '\t' || c == '\r')) {
            if (onSana) sanat.push_back(sana);
            sana.clear();
            onSana = false;
        } else {
            sana += c;
            onSana = true;
        }
    }
    if (onSana) sanat.push_back(sana);
    return !lainauksessa;
}

Ajuri::Ajuri(Kansiot kansiot) : peli_(std::make_unique<Peli>(kanavat_, std::move(kansiot))) {
    AlustaDatakansio(peli_->kansiot);
    AlkuLataus(*peli_);
}

void Ajuri::SuljeAvoinRaportti() {
    // As a player who reads the page and closes it.
    if (peli_->näkymä.RaporttiAuki) SuljeRaportti(*peli_);
}

void Ajuri::Uusi(const std::vector<std::string>& sanat) {
    if (sanat.size() != 5) Virhe("new takes NAME GOAL DIFFICULTY STARS");
    int tavoite = -1;
    for (std::size_t i = 0; i < PELIMOODIT.size(); ++i)
        if (sanat[2] == PELIMOODIT[i]) tavoite = static_cast<int>(i);
    if (tavoite < 0) Virhe("GOAL must be Vapaa, Miljoona or \"10 vuotta\": '" + sanat[2] + "'");
    const long long taso = Luku(sanat[3], "DIFFICULTY", 0, 2);
    if (sanat[4] != "on" && sanat[4] != "off") Virhe("STARS must be on or off");
    if (peli_->käynnissä || luovuttu_) {
        luovuttu_ = false;
        // A new farm from the start screen leaves nothing of the last one.
        peli_->m = Muuttujat{};
        NollaaRuudut(*peli_);
        AlkuLataus(*peli_);
    }
    AlkuRuutu& a = peli_->alku;
    a.Nimesi = sanat[1];
    a.Lista = tavoite;
    a.VTaso = static_cast<int>(taso);
    a.TP_Valinta = sanat[4] == "on";
    // The main screen then shows, as the window's start does: the star locks, the herd, the figures.
    if (AloitaUusi(*peli_)) Vartioitu(*peli_, "", {[&] { PalaaPääruutuun(*peli_); }});
}

void Ajuri::Kutsu(const std::vector<std::string>& sanat) {
    if (sanat.size() < 2) Virhe("call takes an operation");
    const auto& toiminnot = Toiminnot();
    const auto it = toiminnot.find(sanat[1]);
    if (it == toiminnot.end()) Virhe("unknown operation '" + sanat[1] + "'");
    if (!it->second.tilaton) VaadiTila("call " + sanat[1]);
    const std::vector<std::string> argumentit(sanat.begin() + 2, sanat.end());
    const int n = static_cast<int>(argumentit.size());
    if (n < it->second.vähintään || n > it->second.enintään)
        Virhe("wrong number of arguments for " + sanat[1]);
    // An operation with no handler of its own is caught here, as a window catches a click's failure.
    // A word the operation can't take (an unknown card, a lot of 7) is the script's fault, not the game's.
    std::string skriptivirhe;
    bool ohitettu = false;
    Vartioitu(*peli_, "", {[&] {
        try {
            it->second.aja(*peli_, argumentit);
        } catch (const std::runtime_error& e) {
            skriptivirhe = e.what();
        } catch (const Ohitettu&) {
            ohitettu = true;
        }
    }});
    if (!skriptivirhe.empty()) Virhe(skriptivirhe);
    if (ohitettu) kanavat_.tapahtumat.push_back("OHITETTU|" + sanat[1]);
    SuljeAvoinRaportti();
}

void Ajuri::Päivät(const std::vector<std::string>& sanat) {
    if (sanat.size() != 2) Virhe("days takes N");
    VaadiTila("days");
    const long long n = Luku(sanat[1], "N", 0, 1000000);
    for (long long i = 0; i < n; ++i) {
        // A career that has ended leaves the story, then the lists, over the hidden main screen:
        // "Seuraava päivä" can't be pressed now or on any later press of the same command.
        if (peli_->tilanneruutu.Päättynyt) {
            kanavat_.tapahtumat.push_back("OHITETTU|SeuraavaPäivä");
            return;
        }
        SeuraavaPäivä(*peli_);
        SuljeAvoinRaportti();
    }
}

namespace {
// A draw typed as a plain decimal number ("0.5", ".25", "0"): no sign, exponent, hex or words.
bool DesimaaliLuku(const std::string& sana) {
    bool numeroita = false, piste = false;
    for (char c : sana) {
        if (c >= '0' && c <= '9') numeroita = true;
        else if (c == '.' && !piste) piste = true;
        else return false;
    }
    return numeroita;
}

// Bytes of a data file as one printable line: 0x21 to 0x7E stand as they are but a backslash is
// doubled; every other byte, the blank and the line ends too, is \xHH.
std::string Tavuina(std::string_view tavut) {
    std::string ulos;
    for (unsigned char c : tavut) {
        if (c == '\\') {
            ulos += "\\\\";
        } else if (c >= 0x21 && c <= 0x7E) {
            ulos += static_cast<char>(c);
        } else {
            char koodi[8];
            std::snprintf(koodi, sizeof koodi, "\\x%02X", c);
            ulos += koodi;
        }
    }
    return ulos;
}
}  // namespace

void Ajuri::VaadiTila(const std::string& komento) const {
    if (!peli_->käynnissä)
        Virhe(komento + " needs a farm: start one with new first (there is none, or Tilanne.UusiTilanne dropped it)");
}

void Ajuri::Aseta(const std::vector<std::string>& sanat) {
    if (sanat.size() != 3) Virhe("set takes NAME VALUE");
    Peli& peli = *peli_;
    // The day's weather picture, as Keli left it: -1 (none of its own) to 9 (hail).
    if (sanat[1] == SÄÄKUVA) {
        VaadiTila("set " + sanat[1]);
        peli.näkymä.SääKuva = static_cast<int>(Luku(sanat[2], SÄÄKUVA, -1, 9));
        return;
    }
    const auto kenttä = EtsiKenttä(peli, sanat[1]);
    if (!kenttä) Virhe("unknown value '" + sanat[1] + "'");
    // The installation's settings hold for the run only; every other value is the farm's.
    if (!OnAsetus(sanat[1])) VaadiTila("set " + sanat[1]);
    Vartioitu(peli, "", {[&] { AsetaKenttä(*kenttä, sanat[2]); }});
    // Opening a farm rebuilds the supply lists from the flags; a flag set by hand does the same.
    if (sanat[1].rfind("Tarv_", 0) == 0) Vartioitu(peli, "", {[&] { RakennaTarvikelistat(peli); }});
}

void Ajuri::Tulosta(const std::vector<std::string>& sanat, std::ostream& ulos) {
    Peli& peli = *peli_;
    for (std::size_t i = 1; i < sanat.size(); ++i) {
        // A control of a screen first, as the player sees it; then a value of the record.
        if (const auto ohjain = LueOhjain(peli, sanat[i])) {
            ulos << sanat[i] << '=' << OhjainTekstinä(*ohjain) << '\n';
            continue;
        }
        if (sanat[i] == SÄÄKUVA) {
            ulos << sanat[i] << '=' << peli.näkymä.SääKuva << '\n';
            continue;
        }
        const auto kenttä = EtsiKenttä(peli, sanat[i]);
        if (!kenttä) Virhe("unknown value '" + sanat[i] + "'");
        ulos << sanat[i] << '=' << KentänArvo(*kenttä) << '\n';
    }
}

void Ajuri::Arvonnat(const std::vector<std::string>& sanat) {
    for (std::size_t i = 1; i < sanat.size(); ++i) {
        double arvo = -1;
        if (DesimaaliLuku(sanat[i])) arvo = std::strtod(sanat[i].c_str(), nullptr);
        if (!(arvo >= 0.0 && arvo < 1.0)) Virhe("a draw must be a decimal number in [0,1): '" + sanat[i] + "'");
        peli_->arvonta.Jonoon(arvo);
    }
}

void Ajuri::Seuranta(const std::vector<std::string>& sanat) {
    // Each draw is told as an event with the place in the code that took it.
    if (sanat.size() != 2 || (sanat[1] != "on" && sanat[1] != "off")) Virhe("trace takes on or off");
    if (sanat[1] == "off") {
        peli_->arvonta.seuranta = nullptr;
        return;
    }
    peli_->arvonta.seuranta = [this](double r, const std::source_location& paikka) {
        std::string tiedosto = paikka.file_name();
        const auto src = tiedosto.rfind("/src/");
        if (src != std::string::npos) tiedosto = tiedosto.substr(src + 5);
        kanavat_.tapahtumat.push_back("ARVONTA|" + Suoraan(Str(r)) + "|" + tiedosto + ":" +
                                      std::to_string(paikka.line()));
    };
}

std::optional<std::filesystem::path> Ajuri::Datatiedosto(const std::string& nimi) const {
    // Only files of the data folder itself: no folders, no way out of it.
    if (nimi.empty() || nimi.find_first_of("/\\") != std::string::npos || nimi == "." || nimi == "..")
        Virhe("a file of the data folder is named without folders: '" + nimi + "'");
    const auto polku = EtsiTiedosto(peli_->kansiot.data, nimi);
    if (!polku || !std::filesystem::is_regular_file(*polku)) return std::nullopt;
    return *polku;
}

void Ajuri::Tiedosto(const std::vector<std::string>& sanat, std::ostream& ulos) {
    if (sanat.size() != 2) Virhe("file takes NAME");
    const std::string& nimi = sanat[1];
    const auto polku = Datatiedosto(nimi);
    const auto sisältö = polku ? LueTiedosto(*polku) : std::nullopt;
    if (!sisältö) {
        ulos << nimi << "=missing\n";
        return;
    }
    // Its size, then each line up to and with its line feed; bytes after the last one make a last line.
    ulos << nimi << '=' << sisältö->size() << '\n';
    const std::string_view tavut = *sisältö;
    std::size_t alku = 0;
    for (int k = 1; alku < tavut.size(); ++k) {
        const std::size_t lf = tavut.find('\n', alku);
        const std::size_t loppu = lf == std::string_view::npos ? tavut.size() : lf + 1;
        ulos << nimi << ':' << k << '=' << Tavuina(tavut.substr(alku, loppu - alku)) << '\n';
        alku = loppu;
    }
}

void Ajuri::Muuta(const std::vector<std::string>& sanat) {
    if (sanat.size() != 4) Virhe("poke takes NAME OFFSET BYTE");
    const auto löytyi = Datatiedosto(sanat[1]);
    if (!löytyi) Virhe("no file '" + sanat[1] + "' in the data folder");
    const std::filesystem::path& polku = *löytyi;
    const long long kohta = Luku(sanat[2], "OFFSET", 0, std::numeric_limits<long long>::max());
    const long long tavu = Luku(sanat[3], "BYTE", 0, 255);
    const auto koko = std::filesystem::file_size(polku);
    if (static_cast<unsigned long long>(kohta) >= koko)
        Virhe("OFFSET must be within the file's " + std::to_string(koko) + " bytes");
    std::fstream f(polku, std::ios::in | std::ios::out | std::ios::binary);
    f.seekp(kohta);
    f.put(static_cast<char>(tavu));
    if (!f) Virhe("cannot write '" + sanat[1] + "'");
}

void Ajuri::Rivi(const std::string& rivi, std::ostream& ulos) {
    // A comment is a comment whatever it holds, quotes too.
    const auto alku = rivi.find_first_not_of(" \t\r");
    if (alku == std::string::npos || rivi[alku] == '#') return;
    std::vector<std::string> sanat;
    if (!Sanat(rivi, sanat)) Virhe("unclosed quote");
    if (sanat.empty()) return;
    const std::string& komento = sanat[0];
    if (komento == "new") {
        Uusi(sanat);
    } else if (komento == "set") {
        Aseta(sanat);
    } else if (komento == "draws") {
        Arvonnat(sanat);
    } else if (komento == "seed") {
        if (sanat.size() != 2) Virhe("seed takes N");
        const long long n = Luku(sanat[1], "N", 0, 0xFFFFFFFFLL);
        peli_->arvonta.Siemen(static_cast<std::uint32_t>(n));
    } else if (komento == "answer") {
        for (std::size_t i = 1; i < sanat.size(); ++i) kanavat_.vastaukset.push_back(sanat[i]);
    } else if (komento == "call") {
        Kutsu(sanat);
    } else if (komento == "days") {
        Päivät(sanat);
    } else if (komento == "print") {
        Tulosta(sanat, ulos);
    } else if (komento == "dump") {
        for (const Kenttä& k : Kentät(*peli_)) ulos << k.nimi << '=' << YhdelleRiville(KentänArvo(k)) << '\n';
    } else if (komento == "trace") {
        Seuranta(sanat);
    } else if (komento == "events") {
        for (const std::string& t : kanavat_.tapahtumat) ulos << t << '\n';
        kanavat_.tapahtumat.clear();
    } else if (komento == "file") {
        Tiedosto(sanat, ulos);
    } else if (komento == "poke") {
        Muuta(sanat);
    } else {
        Virhe("unknown command '" + komento + "'");
    }
    // Once the game has ended the program the farm is given up: only a new one plays on.
    if (kanavat_.loppu) {
        kanavat_.loppu = false;
        peli_->käynnissä = false;
        luovuttu_ = true;
    }
}

int Ajuri::Aja(std::istream& skripti, std::ostream& ulos, std::ostream& virheet) {
    std::string rivi;
    int numero = 0;
    while (std::getline(skripti, rivi)) {
        ++numero;
        try {
            Rivi(rivi, ulos);
        } catch (const std::exception& e) {
            ulos.flush();
            virheet << "tanhua-sim: line " << numero << ": " << e.what() << '\n' << "  " << rivi << '\n';
            return 1;
        }
    }
    return 0;
}

}  // namespace tanhua
