// The failure reporter: the box of a run-time failure, its count, and guarded operations.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "laskenta.h"

namespace tanhua {

struct Peli;

// Place texts of the guarded operations.
namespace paikka {
inline constexpr std::string_view SeuraavaPäivä = "Tanhua pää formi. Seuraava päivä kohdassa.";
inline constexpr std::string_view PääformiLataus = "Tanhua pää formi. Ladatessa alkuasetuksia.";
inline constexpr std::string_view AlkuLataus = "Alku formi. Ladattaessa alku formia";
inline constexpr std::string_view AlkuTimer1 = "Alku formi. Timer1.";
inline constexpr std::string_view AlkuCommand1 = "Alku formi. Command1 click";
inline constexpr std::string_view Tallennus = "Moduulissa. Tallennettaessa tilannetta.";
inline constexpr std::string_view Avaus = "Moduulissa. Avattaessa tilannetta.";
inline constexpr std::string_view Perushinnat = "Sub:eissa Perushintoja määritellessä.";
inline constexpr std::string_view WavÄäni = "Moduulissa. Soitettaessa Wav ääntä.";
}  // namespace paikka

// The solution text the box gives for a failure number.
std::string Ratkaisuteksti(int numero);

// The whole text of the failure box for the record as it stands (VikaLaskuri already counted).
std::string VikaTilaTeksti(const Peli& peli, const Vika& vika);

// Reports a failure: counts it, builds the box, plays "virhe", asks, sets VikaJatkuu.
// From the ninth failure in a row on it is silent and VikaJatkuu keeps the last answer.
void VikaTila(Peli& peli, const Vika& vika);

// Any exception turned into the failure the reporter shows.
Vika VikaPoikkeuksesta(std::exception_ptr poikkeus);

using Askel = std::function<void()>;

// Runs an operation as a sequence of steps under one handler. A failure in a step is reported
// with the place text; on "go on" the next step runs, otherwise the operation ends there with
// what was done standing. Returns true when every step was run.
bool Vartioitu(Peli& peli, std::string_view paikka, std::initializer_list<Askel> askeleet);

// Runs one step under a handler of its own that shows its own box (built from the failure)
// and goes on without asking.
void OmallaLaatikolla(Peli& peli, std::string_view paikka, const Askel& askel,
                      const std::function<std::string(const Vika&)>& laatikko);

}  // namespace tanhua
