namespace ov { int f(); }
