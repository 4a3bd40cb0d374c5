#include "app/App.h"
#include "runtime/gui/Runtime.h"

int main() {
  tavrelkin::Runtime runtime(":/icon");
  return runtime.run(tavrelkin::New<tavrelkin::App>());
}
