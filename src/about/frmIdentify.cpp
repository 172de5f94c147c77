#include "frmIdentify.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmIdentify::frmIdentify()
{
    setObjectName("frmIdentify");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel("Floatrix", this));
    auto* ok = new QPushButton("&OK", this);
    ok->setObjectName("cmdOK");
    layout->addWidget(ok);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}

void frmIdentify::ShowAbout()
{
    setWindowTitle("About...");
    exec();
}
