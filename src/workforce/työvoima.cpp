// The staff screen: the job list by stars, choosing a job, hiring and firing, the wage slider and overtime.
#include "työvoima.h"

#include <algorithm>
#include <string>

#include "../animals/eläimet.h"
#include "../core/peli.h"
#include "../core/viestit.h"
#include "palkat.h"
#include "taulut/ammatit.h"

namespace tanhua {

namespace {

constexpr const char* EI_RAKENNUSTA =
    "Sinun ei kannata palkata kyseistä työntekijää, koska sinulla ei ole vielä edes rakennusta missä voisi "
    "tehdä töitä.";
constexpr const char* RAKENNUS_TÄYNNÄ =
    "Olet palkkaamassa enemmän työvoimaa, kuin rakennuksellesi mahtuu työntekijöitä. Laajenna ensin "
    "rakennusta, ennenkuin palkkaat lisää työvoimaa.";
constexpr const char* OIKEUSJUTTU =
    " ei ollut tyytyväinen erottamiseen ja haastoi sinut oikeuteen. Jouduit korvaamaan :";

Työläinen Valittu(const TyövoimaRuutuTila& r) { return static_cast<Työläinen>(r.valittu); }

// The wage sum is worked out again and shown under the slider.
void PäivitäPalkkasumma(Peli& peli) {
    LaskePalkat(peli);
    peli.työvoimaruutu.yhtpalk = peli.m.PalkatYhteensä;
}

// mittari_Change: the wage shown is the base plus the slider; the job's wage follows, except for
// the tanner and the watchdog, whose wages don't move.
void MittariMuuttui(Peli& peli) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    Aseta(r.palk, static_cast<double>(r.palkka) + r.mittari);
    if (r.valittu >= 0 && AMMATTITAULU[Valittu(r)].palkkaAsetettavissa) Aseta(peli.m.Palkka[Valittu(r)], r.palk);
    PäivitäPalkkasumma(peli);
    Motilasku(peli);
}

void AsetaYlityö(Peli& peli, bool päällä) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    if (!r.ylityöNapit) return;  // the buttons are disabled for this job
    SoitaÄäni(peli, "klik");
    if (r.valittu < 0) return;
    peli.m.Ylityö[Valittu(r)] = päällä;
    r.YliTyö = päällä ? "Kyllä" : "Ei";
    Stressilasku(peli);
}

}  // namespace

int TyöläinenNimellä(std::string_view nimi) {
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k)
        if (TYÖLÄISTAULU[k].avain == nimi) return static_cast<int>(k);
    return -1;
}

std::vector<Työläinen> TarjolleTyöläiset(const Muuttujat& m) {
    std::vector<Työläinen> lista;
    for (Työläinen k : TYÖLÄISTEN_NÄYTTÖJÄRJESTYS)
        if (Tarjolla(m, k)) lista.push_back(k);
    return lista;
}

Long TyöpaikkojaRakennuksessa(const Muuttujat& m, Työläinen k) {
    const auto& katto = AMMATTITAULU[k].katto;
    if (!katto) return -1;
    return CLng(2.0 * m.Rak[*katto]);
}

bool Tarjolla(const Muuttujat& m, Työläinen k) {
    return !m.TähtiLukitus || TYÖLÄISTAULU[k].tähtiä <= m.Tähdet;
}

bool MittariLiikkuu(const Muuttujat& m, Työläinen k) {
    return AMMATTITAULU[k].palkkaAsetettavissa && !m.PalkkaLukko[k];
}

bool YlityöAsetettavissa(Työläinen k) { return AMMATTITAULU[k].ylityöAsetettavissa; }

void AvaaTyövoima(Peli& peli) {
    SoitaÄäni(peli, "klik");
    Lasketyöläiset(peli);
    Motilasku(peli);
    Stressilasku(peli);
}

void ValitseTyöläinen(Peli& peli, Työläinen k) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    Muuttujat& m = peli.m;
    const AmmattiRivi& a = AMMATTITAULU[k];
    SoitaÄäni(peli, "siirto");
    r.valittu = static_cast<int>(k);
    r.työ = std::string(TYÖLÄISTAULU[k].avain);
    r.kuva = "Kuvat/ihmiset/" + std::string(a.kuva);
    r.info = std::string(a.teksti);
    // The tanner's wage is held at its base; a new farm has it at 0 until the tanner is first chosen.
    if (k == Nahkuri) m.Palkka[k] = m.PerusPalkka[k];
    r.palkka = m.PerusPalkka[k];
    r.työmies = m.Työ[k];
    r.palk = a.palkkaAsetettavissa ? m.Palkka[k] : m.PerusPalkka[k];

    if (a.ylityöAsetettavissa) {
        r.YliTyö = m.Ylityö[k] ? "Kyllä" : "Ei";
        r.ylityöNapit = true;
    } else {
        r.YliTyö = "Ei voida määrittää";
        r.ylityöNapit = false;
    }

    r.mittariKäytössä = MittariLiikkuu(m, k);
    if (!a.palkkaAsetettavissa) {
        AsetaMittari(peli, 0);
        return;
    }
    // A wage raised past the slider's end in the wage talks puts the slider at its end; that move
    // sets the wage back to base + 1000.
    const double ero = static_cast<double>(m.Palkka[k]) - m.PerusPalkka[k];
    Integer arvo = 0;
    Aseta(arvo, std::clamp(ero, static_cast<double>(TyövoimaRuutuTila::MITTARI_MIN),
                           static_cast<double>(TyövoimaRuutuTila::MITTARI_MAX)));
    AsetaMittari(peli, arvo);
}

void AsetaMittari(Peli& peli, Integer arvo) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    arvo = std::clamp(arvo, TyövoimaRuutuTila::MITTARI_MIN, TyövoimaRuutuTila::MITTARI_MAX);
    if (arvo == r.mittari) return;  // no change, no Change event
    r.mittari = arvo;
    MittariMuuttui(peli);
}

void SiirräMittaria(Peli& peli, Integer arvo) {
    if (!peli.työvoimaruutu.mittariKäytössä) return;
    AsetaMittari(peli, arvo);
}

void OtaTöihin(Peli& peli) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    Muuttujat& m = peli.m;
    SoitaÄäni(peli, "siirto");
    if (r.valittu < 0) return;
    const Työläinen k = Valittu(r);
    // A hire costs nothing and waits for nothing; only the building's room limits it.
    const Long paikkoja = TyöpaikkojaRakennuksessa(m, k);
    if (paikkoja == 0) {
        Kieltäydy(peli, EI_RAKENNUSTA);
        return;
    }
    if (paikkoja > 0 && paikkoja <= m.Työ[k]) {
        Kieltäydy(peli, RAKENNUS_TÄYNNÄ);
        return;
    }
    Lisää(m.Työ[k], 1);
    r.työmies = m.Työ[k];
    PäivitäPalkkasumma(peli);
    Lasketyöläiset(peli);
    Stressilasku(peli);
    Motilasku(peli);
}

void Erota(Peli& peli) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    Muuttujat& m = peli.m;
    SoitaÄäni(peli, "siirto");
    if (r.valittu < 0 || r.työmies < 1) return;
    const Työläinen k = Valittu(r);
    Lisää(m.Työ[k], -1);
    r.työmies = m.Työ[k];
    // One in three fired workers sues, if there is money to sue for; the claim is only tested
    // against the cash before it and may take the cash below zero.
    if (peli.arvonta.U(1, 3) == 1 && m.Raha > 0) {
        const double korvaus = Int(m.Raha / 5.0 * peli.arvonta.r() + 3000) + 500;
        Lisää(m.Raha, -Int(korvaus));
        peli.näkymä.PaluuLomake = "Työvoima";
        Kerro(peli, "Kuvat/sattumat/tuomari.jpg", r.työ + OIKEUSJUTTU + Str(korvaus));
        SoitaÄäni(peli, "Koputus");
    }
    Lasketyöläiset(peli);
}

void YlityöPäälle(Peli& peli) { AsetaYlityö(peli, true); }
void YlityöPois(Peli& peli) { AsetaYlityö(peli, false); }

void Lasketyöläiset(Peli& peli) { Aseta(peli.työvoimaruutu.Työläisiä, TyöntekijöitäYhteensä(peli.m)); }

void SuljeTyövoima(Peli& peli) {
    SoitaÄäni(peli, "klik");
    EläintenKunto(peli);
}

}  // namespace tanhua
