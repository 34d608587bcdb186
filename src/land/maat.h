// The land's day: the forester's felling and the grain of the fields.
#pragma once

namespace tanhua {

struct Peli;

void Metsänhakkuu(Peli& peli);
void Viljankasvu(Peli& peli);

}  // namespace tanhua
