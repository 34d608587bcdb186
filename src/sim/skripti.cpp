// The headless runner: the script's commands on one game, with recording channels.
#include "skripti.h"

#include <istream>
#include <ostream>
#include <stdexcept>

#include "core/alku.h"
#include "core/kentät.h"
#include "core/kuukausi.h"
#include "core/ohjaimet.h"
#include "core/päivä.h"
#include "core/vikatila.h"
#include "storage/tiedostot.h"

namespace tanhua {

namespace {
[[noreturn]] void Virhe(const std::string& syy) { throw std::runtime_error(syy); }

long long Kokonaisluku(const std::string& sana, const std::string& mikä) {
    std::size_t käytetty = 0;
    long long arvo = 0;
    try {
        arvo = std::stoll(sana, &käytetty);
    } catch (const std::exception&) {
        käytetty = 0;
    }
    if (käytetty == 0 || käytetty != sana.size()) Virhe(mikä + " must be a whole number: '" + sana + "'");
    return arvo;
}
}  // namespace

void Ohita() { throw Ohitettu{}; }

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
    const long long taso = Kokonaisluku(sanat[3], "DIFFICULTY");
    if (taso < 0 || taso > 2) Virhe("DIFFICULTY must be 0, 1 or 2");
    if (sanat[4] != "on" && sanat[4] != "off") Virhe("STARS must be on or off");
    if (peli_->käynnissä) {
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
    AloitaUusi(*peli_);
}

void Ajuri::Kutsu(const std::vector<std::string>& sanat) {
    if (sanat.size() < 2) Virhe("call takes an operation");
    const auto& toiminnot = Toiminnot();
    const auto it = toiminnot.find(sanat[1]);
    if (it == toiminnot.end()) Virhe("unknown operation '" + sanat[1] + "'");
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
    const long long n = Kokonaisluku(sanat[1], "N");
    if (n < 0) Virhe("N must not be negative");
    for (long long i = 0; i < n; ++i) {
        SeuraavaPäivä(*peli_);
        SuljeAvoinRaportti();
    }
}

void Ajuri::Rivi(const std::string& rivi, std::ostream& ulos) {
    std::vector<std::string> sanat;
    if (!Sanat(rivi, sanat)) Virhe("unclosed quote");
    if (sanat.empty() || sanat[0][0] == '#') return;
    const std::string& komento = sanat[0];
    Peli& peli = *peli_;
    if (komento == "new") {
        Uusi(sanat);
    } else if (komento == "set") {
        if (sanat.size() != 3) Virhe("set takes NAME VALUE");
        const auto kenttä = EtsiKenttä(peli, sanat[1]);
        if (!kenttä) Virhe("unknown value '" + sanat[1] + "'");
        Vartioitu(peli, "", {[&] { AsetaKenttä(*kenttä, sanat[2]); }});
    } else if (komento == "draws") {
        for (std::size_t i = 1; i < sanat.size(); ++i) {
            std::size_t käytetty = 0;
            double arvo = -1;
            try { arvo = std::stod(sanat[i], &käytetty); } catch (const std::exception&) { käytetty = 0; }
            if (käytetty != sanat[i].size() || !(arvo >= 0.0 && arvo < 1.0))
                Virhe("a draw must be a number in [0,1): '" + sanat[i] + "'");
            peli.arvonta.Jonoon(arvo);
        }
    } else if (komento == "seed") {
        if (sanat.size() != 2) Virhe("seed takes N");
        peli.arvonta.Siemen(static_cast<std::uint32_t>(Kokonaisluku(sanat[1], "N")));
    } else if (komento == "answer") {
        for (std::size_t i = 1; i < sanat.size(); ++i) kanavat_.vastaukset.push_back(sanat[i]);
    } else if (komento == "call") {
        Kutsu(sanat);
    } else if (komento == "days") {
        Päivät(sanat);
    } else if (komento == "print") {
        for (std::size_t i = 1; i < sanat.size(); ++i) {
            // A control of a screen first, as the player sees it; then a value of the record.
            if (const auto ohjain = LueOhjain(peli, sanat[i])) {
                ulos << sanat[i] << '=' << OhjainTekstinä(*ohjain) << '\n';
                continue;
            }
            const auto kenttä = EtsiKenttä(peli, sanat[i]);
            if (!kenttä) Virhe("unknown value '" + sanat[i] + "'");
            ulos << sanat[i] << '=' << KentänArvo(*kenttä) << '\n';
        }
    } else if (komento == "dump") {
        for (const Kenttä& k : Kentät(peli)) ulos << k.nimi << '=' << YhdelleRiville(KentänArvo(k)) << '\n';
    } else if (komento == "trace") {
        // Each draw is told as an event with the place in the code that took it.
        if (sanat.size() != 2 || (sanat[1] != "on" && sanat[1] != "off")) Virhe("trace takes on or off");
        if (sanat[1] == "on") {
            peli.arvonta.seuranta = [this](double r, const std::source_location& paikka) {
                std::string tiedosto = paikka.file_name();
                const auto src = tiedosto.rfind("/src/");
                if (src != std::string::npos) tiedosto = tiedosto.substr(src + 5);
                kanavat_.tapahtumat.push_back("ARVONTA|" + Suoraan(Str(r)) + "|" + tiedosto + ":" +
                                              std::to_string(paikka.line()));
            };
        } else {
            peli.arvonta.seuranta = nullptr;
        }
    } else if (komento == "events") {
        for (const std::string& t : kanavat_.tapahtumat) ulos << t << '\n';
        kanavat_.tapahtumat.clear();
    } else {
        Virhe("unknown command '" + komento + "'");
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
