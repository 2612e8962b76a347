*PLT
