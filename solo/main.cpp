#include "SoloApplication.h"

int main(int argc, char *argv[])
{
    return SoloApplication::run(argc, argv);
}
