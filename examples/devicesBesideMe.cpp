// Prints the models that the databases beside this program describe.

#include <kestrovaDevicelore.h>

#include <QCoreApplication>
#include <QTextStream>

using namespace kestrova::Morvel::Devicelore;

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);

    CDriverCache * const cache = new CDriverCache;
    CDevicelore const devicelore(cache,
                                 nullptr); // opens *.db3 beside the program, and owns the cache from now on

    QTextStream out(stdout);
    QStringList models = cache->deviceModels();
    models.sort();
    for (QString const & model : models)
        out << model << '\n';
    return models.isEmpty() ? 1 : 0;
}
