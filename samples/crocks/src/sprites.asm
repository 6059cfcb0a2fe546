; Small pictures as text: width, height, a letter a pixel.

; Colours of the letters; a point is clear.
colour_of_letter:
        times 'A' - ($ - colour_of_letter) db 0
%assign shade 0
%rep 16
        db      kClay + shade           ; A to P
%assign shade shade + 1
%endrep
        db      kSnow + 5               ; Q   shadow on snow
        db      kSnow + 7               ; R
        db      kSnow + 9               ; S
        db      kSnow + 11              ; T
        db      kSnow + 13              ; U
        db      kWhite                  ; V
        db      kRed + 4                ; W   coat
        db      kRed + 8                ; X
        db      kRed + 12               ; Y
        db      kNight                  ; Z
        times 'a' - ($ - colour_of_letter) db 0
        db      kSkin + 14              ; a
        db      kSkin + 10              ; b
        db      kWood + 1               ; c   hair, shoes
        db      kWood + 5               ; d
        db      kWood + 10              ; e
        db      kGlow + 8               ; f   straw, lamplight
        db      kGlow + 12              ; g
        db      kGlow + 15              ; h
        db      kWood + 7               ; i
        db      kWood + 13              ; j
        db      kPine + 2               ; k
        db      kPine + 6               ; l
        db      kPine + 10              ; m
        db      kStone + 4              ; n
        db      kStone + 8              ; o
        db      kStone + 12             ; p
        db      kSnow + 3               ; q
        db      kRed + 15               ; r

sprite_crock:
        db      16, 19
        db      "......GGBB......"
        db      "....HLLKIGDB...."
        db      "..GKLLLLKJHGEB.."
        db      ".BEFFFFFFEDCBBB."
        db      "..BEEEEEDCBBBB.."
        db      "..FJKKKKJIGFDB.."
        db      ".FJJKKKKJIHGFDB."
        db      "EIJKOOKKJJIHGEDB"
        db      "EIJKOKKKJJIHGEDB"
        db      "EIJKPMKKMLIHIHDB"
        db      "EIJMKKMMJJKJGEDB"
        db      "EIJJJKKJJIIHFEDB"
        db      "EIIJJJJJJIHGFECB"
        db      "DHIIJJJJIIHGFDCB"
        db      ".DHIIJJIIHGFDBB."
        db      ".DHIIIIIHHGEDBB."
        db      "..DHIIIHHGEDBB.."
        db      "..DHHIHHGFECBB.."
        db      "...BEEEECBBBB..."

sprite_crock_home:
        db      16, 19
        db      "......GGBB......"
        db      "....HLLKIGDB...."
        db      "..GKLLLLKJHGEB.."
        db      ".BEFFFFFFEDCBBB."
        db      "..BEEEEEDCBBBB.."
        db      "..FJKKKKJIGFDB.."
        db      ".hhfhhfhhfhhfhh."
        db      "EfJhfOKfhJfHhfDB"
        db      "EIJVOKKKVJIHVEDB"
        db      "EIJVPMKKVLIHVHDB"
        db      "EIJMKKMMrJKJGEDB"
        db      "EIJJJKKJJIIHFEDB"
        db      "EIIJJJJJJIHGFECB"
        db      "DHIIJJJJIIHGFDCB"
        db      ".DHIIJJIIHGFDBB."
        db      ".DHIIIIIHHGEDBB."
        db      "..DHIIIHHGEDBB.."
        db      "..DHHIHHGFECBB.."
        db      "...BEEEECBBBB..."

sprite_crock_snow:
        db      16, 19
        db      "......VVVV......"
        db      "....VVVVVUUU...."
        db      "..TVVVVVVUUUUT.."
        db      ".BEFFFFFFEDCBBB."
        db      "..BEEEEEDCBBBB.."
        db      "..FJKKKKJIGFDB.."
        db      ".UUJKKKKJIHGFUU."
        db      "EIJKOOKKJJIHGEDB"
        db      "EIJKOKKKJJIHGEDB"
        db      "EIJKPMKKMLIHIHDB"
        db      "EIJMKKMMJJKJGEDB"
        db      "EIJJJKKJJIIHFEDB"
        db      "EIIJJJJJJIHGFECB"
        db      "DHIIJJJJIIHGFDCB"
        db      ".DHIIJJIIHGFDBB."
        db      ".DHIIIIIHHGEDBB."
        db      "..DHIIIHHGEDBB.."
        db      "..DHHIHHGFECBB.."
        db      "...BEEEECBBBB..."

sprite_front:
        db      12, 18
        db      "....WXXW...."
        db      "...WXYYXW..."
        db      "..WXYXXXXW.."
        db      "..TUUVVUUT.."
        db      "..TcaaaacT.."
        db      "..caZaaZac.."
        db      "..cabaabac.."
        db      "...baYYab..."
        db      "..hfhhhhfh.."
        db      ".WXXYXXYXXW."
        db      ".XYXXggXXYX."
        db      ".aWXXXXXXWa."
        db      "..WXXXXXXW.."
        db      "..WXYXXYXW.."
        db      "..TUUUUUUT.."
        db      "...dd..dd..."
        db      "...dd..dd..."
        db      "...cc..cc..."

sprite_front_walks:
        db      12, 18
        db      "....WXXW...."
        db      "...WXYYXW..."
        db      "..WXYXXXXW.."
        db      "..TUUVVUUT.."
        db      "..TcaaaacT.."
        db      "..caZaaZac.."
        db      "..cabaabac.."
        db      "...baYYab..."
        db      "..hfhhhhfh.."
        db      ".WXXYXXYXXW."
        db      ".XYXXggXXYX."
        db      ".aWXXXXXXWa."
        db      "..WXXXXXXW.."
        db      "..WXYXXYXW.."
        db      "..TUUUUUUT.."
        db      "...dd..dd..."
        db      "...cc..dd..."
        db      ".......cc..."

sprite_back:
        db      12, 18
        db      "....WXXW...."
        db      "...WXYYXW..."
        db      "..WXYXXXXW.."
        db      "..TUUUUUUT.."
        db      "..WXXYYXXW.."
        db      "..WXXXYXXW.."
        db      "..WXXXXXXW.."
        db      "...WXXXXW..."
        db      "..hfhcchfh.."
        db      ".WXXXccXXXW."
        db      ".XYXXccXXYX."
        db      ".aWXXccXXWa."
        db      "..WXXrrXXW.."
        db      "..WXYrrYXW.."
        db      "..TUUUUUUT.."
        db      "...dd..dd..."
        db      "...dd..dd..."
        db      "...cc..cc..."

sprite_back_walks:
        db      12, 18
        db      "....WXXW...."
        db      "...WXYYXW..."
        db      "..WXYXXXXW.."
        db      "..TUUUUUUT.."
        db      "..WXXYYXXW.."
        db      "..WXXXYXXW.."
        db      "..WXXXXXXW.."
        db      "...WXXXXW..."
        db      "..hfhcchfh.."
        db      ".WXXXccXXXW."
        db      ".XYXXccXXYX."
        db      ".aWXXccXXWa."
        db      "..WXXrrXXW.."
        db      "..WXYrrYXW.."
        db      "..TUUUUUUT.."
        db      "...dd..dd..."
        db      "...dd..cc..."
        db      "...cc......."

sprite_side:
        db      12, 18
        db      "....WXXXW..."
        db      "...WXYXXXW.."
        db      "..WXYXXXXW.."
        db      "..UVVUUUUT.."
        db      "..aaaaccXW.."
        db      "..aZaaccXW.."
        db      "..aaaaccXW.."
        db      "...baabcW..."
        db      "..hfhhhfcc.."
        db      "...XXYXXWc.."
        db      "...XYYXXWr.."
        db      "..aaaYXXW..."
        db      "...WXXXXW..."
        db      "...WXYXXW..."
        db      "...TUUUUT..."
        db      "....dddd...."
        db      "....d.dd...."
        db      "...cc.cc...."

sprite_side_walks:
        db      12, 18
        db      "....WXXXW..."
        db      "...WXYXXXW.."
        db      "..WXYXXXXW.."
        db      "..UVVUUUUT.."
        db      "..aaaaccXW.."
        db      "..aZaaccXW.."
        db      "..aaaaccXW.."
        db      "...baabcW..."
        db      "..hfhhhfcc.."
        db      "...XXYXXWc.."
        db      "...XYYXXWr.."
        db      "..aaaYXXW..."
        db      "...WXXXXW..."
        db      "...WXYXXW..."
        db      "...TUUUUT..."
        db      "...ddddd...."
        db      "..dd..dd...."
        db      "..cc...cc..."

sprite_house:
        db      58, 30
        db      ".........................................................."
        db      "...................VVVVVVVVVVVVVVVVVVVV..................."
        db      "................VVVVVVVVVVVVVVVVVVVVVVVVVV................"
        db      ".............VVVVVVVVUUUUUUUUUUUUUUUUVVVVVVVV............."
        db      "...........VVVVVVUUUUUUUUUUUUUUUUUUUUUUUUVVVVVV..........."
        db      ".........VVVVVUUUUUUTUUeTUUeTUUeTUUUTUUUUUUUVVVVV........."
        db      ".......VVVVVUUUUeUUTeUeTeTeTeTeTeTeTeUUTeUUUUUVVVVV......."
        db      "......VVVVUUUUUeTUTjeeejeeejeeejeeejeeeeTUUUUUUUVVVV......"
        db      "....VVVVUUUUeUeTjeeejeeejeeejeeejeeejeeejeeTeUUUUUVVVV...."
        db      "...VVVUUUUUeTjeeejeeejeeejeeejeeejeeejeeejeeeUTeTUUUVVV..."
        db      "..VVVUUUeUeeeejeeejeeejeeejeeejeeejeeejeeejeeejTeUUUUVVV.."
        db      ".VVVUUUeTeejeeejeeejeeejeeejeeejeeejeeejeeejeeejeUUUUUVVV."
        db      ".VUUUUeejeeejeeejeeejeeejeeejeeejeeejeeejeeejeeejeeTeUUUV."
        db      ".UUUTeeeejeeejeeejeeejeeejeeejeeejeeejeeejeeejeeejeeTUUUU."
        db      "..iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii.."
        db      "...iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii..."
        db      ".....ciddiddiddiddiddiddiddicdiddiddiddiddiddiddiddic....."
        db      ".....cddddddiiiiiiiiiiiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddihhhhihhhhiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddihhhhihhhhiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddihhhhihhhhiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddiiiiiiiiiiiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddihhhhihhhhiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddihhhhihhhhiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddihhhhihhhhiddddccdddddiggigggiddddddddddc....."
        db      ".....cddddddiiiiiiiiiiiddddccdddddiggigggiddddddddddc....."
        db      ".....cdddddddddddddddddddddccdddddiggigggiddddddddddc....."
        db      ".....cdddddddddddddddddddddccdddddiggigggiddddddddddc....."
        db      ".....cnnnnnnnnnnnnnnnnnnnnnccnnnnnnnnnnnnnnnnnnnnnnnc....."
        db      ".....cnnnnnnnnnnnnnnnnnnnnnccnnnnnnnnnnnnnnnnnnnnnnnc....."

sprite_pine:
        db      23, 34
        db      "..........kVm.........."
        db      "..........VVV.........."
        db      ".........VVVVT........."
        db      "........VkVkVmT........"
        db      ".......kkkkkllmm......."
        db      "......Vkkkkklllmm......"
        db      ".....Vkkkkkkkllkmm....."
        db      "....Vkkkkkkkllkllkm...."
        db      ".........VVVVT........."
        db      "........kVVVVTm........"
        db      ".......kVVVVVTTm......."
        db      "......kkVkVkVlTmm......"
        db      ".....kkkkkkkllllmm....."
        db      ".....Vkkkkkkllllmm....."
        db      "....kkkkkkkklkllkmm...."
        db      "...kkkkkkkkkkllkllkm..."
        db      "........VVVVVTT........"
        db      ".......VVVVVVTTT......."
        db      "......VVVVVVVTTTT......"
        db      ".....kVkVkVkVlTlTm....."
        db      "....kkkkkkkklllllmm...."
        db      "...Vkkkkkkkkllllllmm..."
        db      "..kkkkkkkkkkllkllklmk.."
        db      ".kkkkkkkkkkklkllkllkmm."
        db      "......kVVVVVVTTTm......"
        db      ".....kVVVVVVVTTTTm....."
        db      ".....VVVVVVVVTTTTT....."
        db      "....VkVkVkVkVlTlTmT...."
        db      "...kkkkkkkkkllllllmm..."
        db      "..Vkkkkkkkkklllllllmm.."
        db      "..........ccc.........."
        db      "..........ccc.........."
        db      "..........ccc.........."
        db      "..........ccc.........."
