#include "app/App.h"
#include "runtime/Runtime.h"

int main() {
  tavrelkin::Runtime runtime(":/icon");
  return runtime.run(tavrelkin::New<tavrelkin::App>());
}
