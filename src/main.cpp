#include "app/App.h"
#include "runtime/toolkit/Runtime.h"

int main() {
  tavrelkin::Runtime runtime(":/icon");
  return runtime.run(tavrelkin::New<tavrelkin::App>());
}
