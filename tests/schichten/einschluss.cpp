// Compiled by the layer tests with KOPF set to one header.
#include KOPF
