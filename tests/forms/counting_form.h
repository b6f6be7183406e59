// A form that counts how often it was closed, and its buttons, which write down that they were pressed.
#pragma once

#include "forms/picture_button.h"
#include "tests/forms/demo_form.h"

#include <QAbstractButton>

#include <memory>

namespace tabrova::testing {

class CountingFormTest : public FormTest {
  protected:
    DemoForm& make() {
        form = std::make_unique<DemoForm>(folder());
        form->closed = [this] { ++closings; };
        return *form;
    }
    template <class Button>
    Button* button(const QString& name) {
        auto* made = form->add<Button>(name);
        QObject::connect(made, &QAbstractButton::clicked, made, [this, name] { pressed.append(name); });
        return made;
    }
    PictureButton* picture(const QString& name) {
        auto* made = new PictureButton(name, QIcon(), {16, 16}, form.get());
        form->column->addWidget(made);
        made->Click = [this, name] { pressed.append(name); };
        return made;
    }

    std::unique_ptr<DemoForm> form;
    int closings = 0;
    QStringList pressed;
};

} // namespace tabrova::testing
