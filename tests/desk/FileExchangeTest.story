== DialogsStartAtTheFileUsedLast
save "" -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
save . -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
save .. -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
save a/b -> [save "Save As" of Cars (*.car) cancel], started /cars as ""
answer cancel; save Mine -> [save "Save As" of Cars (*.car) cancel], started /cars as "/cars/Mine.car"
answer ok; save Mine -> [save "Save As" of Cars (*.car) ok], started /cars as "/cars/Mine.car", file 2026
answer file /other/x; save Mine -> [save "Save As" of Cars (*.car) /other/x], started /cars/Mine.car as "/cars/Mine.car"
put /other/x.car text; answer file /other/x.car; load -> [open "Load" of Cars (*.car) /other/x.car], started /other/x.car as "", took /other/x.car: text
put /other/x.car bad; answer file /other/x.car; load -> [open "Load" of Cars (*.car) /other/x.car], [15 ok], started /other/x.car as ""
answer file /none.car; load -> [open "Load" of Cars (*.car) /none.car], [15 ok], started /other/x.car as ""
answer cancel; load -> [open "Load" of Cars (*.car) cancel], started /none.car as ""
disk full; answer ok; save Mine -> [save "Save As" of Cars (*.car) ok], [19 ok], started /none.car as "/none.car"
