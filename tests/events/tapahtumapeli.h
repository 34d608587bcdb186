// Shared set-up of the event tests: a farm with sound on, nothing in it, and a way to play one event
// from given draws, checking that exactly those draws were taken.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <vector>

#include "core/peli.h"
#include "events/sattumat.h"
#include "tuki/testipeli.h"

namespace tanhua::testi {

// A draw r that gives D(x) = d.
inline double A(int d, int x) { return (d + 0.5) / x; }

struct Sattuma : Testipeli {
    Sattuma() {
        Aloita();
        peli.asetukset.Äänitehosteet = true;
        // A farm with nothing that a gate could catch by accident.
        m.El = {};
        m.Var = {};
        m.Työ = {};
        m.Tarv = {};
        m.Raha = 0;
        m.Tili = 0;
        m.Hygienia = 100;
        m.Vuodenaika = "Kesä";
        peli.arvonta.seuranta = [this](double, const std::source_location&) { ++otettu; };
    }
    void Vakuuta(Vakuutus v) { m.Pankki.Vakuutus[v] = 1; }

    // Plays the event from the draws; every one of them must be taken, and no other.
    std::optional<SattumanTulos> Pelaa(int numero, std::initializer_list<double> arvot) {
        for (double a : arvot) peli.arvonta.Jonoon(a);
        otettu = 0;
        auto tulos = PelaaSattuma(peli, numero, LaskeLaskurit(peli));
        EXPECT_EQ(otettu, arvot.size()) << "draws taken by event " << numero;
        peli.arvonta.TyhjennäJono();
        return tulos;
    }

    std::size_t otettu = 0;
};

inline SattumanTulos T(std::string rivi, std::string kuva, std::string teksti, std::string ääni = "") {
    return SattumanTulos{std::move(rivi), std::move(kuva), std::move(teksti), std::move(ääni)};
}

}  // namespace tanhua::testi
